#include "platform/base/RuntimeError.h"

#include "support/Printing.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace lineforge
{
namespace
{
using testing::TestWithParam;
using testing::Values;

struct Wording {
    int Number;
    QStringView Text;
};

class RuntimeErrorTextTest : public TestWithParam<Wording>
{
};

TEST_P(RuntimeErrorTextTest, Error_CarriesThePlatformsWords)
{
    const RuntimeError error(GetParam().Number);

    EXPECT_EQ(error.Number, GetParam().Number);
    EXPECT_EQ(error.Text, GetParam().Text);
    EXPECT_EQ(RuntimeErrorText(GetParam().Number), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Known, RuntimeErrorTextTest,
    Values(Wording{ErrorNumber::InvalidCall, u"Invalid procedure call or argument"},
           Wording{ErrorNumber::Overflow, u"Overflow"}, Wording{ErrorNumber::OutOfMemory, u"Out of memory"},
           Wording{ErrorNumber::Subscript, u"Subscript out of range"},
           Wording{ErrorNumber::TypeMismatch, u"Type mismatch"}, Wording{ErrorNumber::FileNotFound, u"File not found"},
           Wording{ErrorNumber::FileAlreadyOpen, u"File already open"},
           Wording{ErrorNumber::DeviceIo, u"Device I/O error"},
           Wording{ErrorNumber::FileAlreadyExists, u"File already exists"},
           Wording{ErrorNumber::DiskFull, u"Disk full"}, Wording{ErrorNumber::InputPastEnd, u"Input past end of file"},
           Wording{ErrorNumber::PermissionDenied, u"Permission denied"},
           Wording{ErrorNumber::PathFileAccess, u"Path/File access error"},
           Wording{ErrorNumber::PathNotFound, u"Path not found"},
           Wording{ErrorNumber::ObjectNotSet, u"Object variable not set"},
           Wording{ErrorNumber::InvalidUseOfNull, u"Invalid use of Null"},
           Wording{ErrorNumber::InvalidFileFormat, u"Invalid file format"},
           Wording{ErrorNumber::ArrayElementMissing, u"Control array element doesn't exist"},
           Wording{ErrorNumber::ArrayElementLoaded, u"Object already loaded"},
           Wording{ErrorNumber::InvalidPicture, u"Invalid picture"},
           Wording{ErrorNumber::PrinterError, u"Printer error"}));

INSTANTIATE_TEST_SUITE_P(
    OfTheRecordStore, RuntimeErrorTextTest,
    Values(Wording{ErrorNumber::UpdateWithoutEdit, u"Update or CancelUpdate without AddNew or Edit."},
           Wording{ErrorNumber::NoCurrentRecord, u"No current record."},
           Wording{ErrorNumber::DatabaseNotFound, u"Couldn't find the database file."},
           Wording{ErrorNumber::DatabaseReadOnly, u"Can't update. Database or object is read-only."},
           Wording{ErrorNumber::TableNotFound, u"The database engine can't find the input table."},
           Wording{ErrorNumber::NotABookmark, u"Not a valid bookmark."},
           Wording{ErrorNumber::RecordDeleted, u"Record is deleted."},
           Wording{ErrorNumber::DatabaseBusy, u"Couldn't update; currently locked."},
           Wording{ErrorNumber::ItemNotFound, u"Item not found in this collection."},
           Wording{ErrorNumber::NotADatabase, u"Unrecognized database format."}));

INSTANTIATE_TEST_SUITE_P(Unknown, RuntimeErrorTextTest,
                         Values(Wording{0, u"Application-defined or object-defined error"},
                                Wording{-1, u"Application-defined or object-defined error"},
                                Wording{4711, u"Application-defined or object-defined error"}));

TEST(ErrorStateTest, RefusedStatement_IsAbandoned_AndRemembered)
{
    ErrorState errors;
    bool wentOn = false;

    errors.Ignoring([&] {
        throw RuntimeError(ErrorNumber::FileNotFound);
        wentOn = true;
    });

    EXPECT_FALSE(wentOn);
    ASSERT_TRUE(errors.Last);
    EXPECT_EQ(errors.Last->Number, ErrorNumber::FileNotFound);
}

TEST(ErrorStateTest, LaterSuccess_KeepsTheEarlierError_UntilCleared)
{
    ErrorState errors;
    errors.Ignoring([] { throw RuntimeError(ErrorNumber::Overflow); });

    errors.Ignoring([] {});
    ASSERT_TRUE(errors.Last);
    EXPECT_EQ(errors.Last->Number, ErrorNumber::Overflow);

    errors.Clear();
    EXPECT_FALSE(errors.Last);
}

TEST(ErrorStateTest, LaterRefusal_ReplacesTheEarlier)
{
    ErrorState errors;
    errors.Ignoring([] { throw RuntimeError(ErrorNumber::Overflow); });
    errors.Ignoring([] { throw RuntimeError(ErrorNumber::DiskFull); });

    EXPECT_EQ(errors.Last->Number, ErrorNumber::DiskFull);
}

TEST(ErrorStateTest, WhatIsNoRefusal_PassesThrough)
{
    ErrorState errors;

    EXPECT_THROW(errors.Ignoring([] { throw std::logic_error("bug"); }), std::logic_error);
    EXPECT_FALSE(errors.Last);
}

} // namespace
} // namespace lineforge
