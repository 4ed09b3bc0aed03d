#pragma once

#include "check/Findings.h"
#include "platform/files/FileSystem.h"
#include "platform/store/Fields.h"

#include <QSet>

#include <array>
#include <chrono>
#include <optional>

namespace lineforge::check
{

// The fields of a record that lead to another one.
inline constexpr std::array<QStringView, 3> linkFields{Field::FatherRec, Field::MotherRec, Field::SpouseRec};

// What the check needs of a record.
struct Record {
    QString Number;
    std::array<QString, linkFields.size()> Links;
};

// A branch directory of the home. Texts in the sets are folded.
struct Branch {
    QString Name;          // of the directory, as it is spelt on the disk
    QString Path;          // without a trailing separator
    bool IsClosed = false; // nobody can look into it

    std::optional<std::vector<Record>> Records{}; // nothing when they can't be told
    QSet<QString> Numbers{};
    QSet<QString> Boxed{}; // numbers that its map shows, its own people's and others'
};

// A home that is being checked.
struct Home {
    Home(const QString& directory, std::chrono::milliseconds patience);

    // What stands under an absolute path is wrong so.
    void Add(Kind kind, const QString& path, const QString& text, const QString& record = {});

    // What a path is called in a finding.
    QString Relative(const QString& path) const;

    // The branch in that directory of the home, case ignored; null for none.
    const Branch* Find(const QString& name) const;

    // Whether that number leads to a record, from that branch: to one of its own, or to one of the sibling branch of
    // its letter. True as well where the records that it leads to can't be told.
    bool Leads(const Branch& from, const QString& number) const;
    // The reason, of one that leads to none.
    QString WhyNot(const Branch& from, const QString& number) const;

    // Whether anything stands there, if only a link that leads nowhere.
    static bool Stands(const QString& path);

    // The names of the plain files in a directory; a finding, and none, when it can't be listed.
    QStringList FilesOf(const QString& directory);
    // Whether a plain file stands there that can be read; a finding where not.
    bool RequireReadable(const QString& path);

    const QString Path; // with a trailing separator
    const FileSystem Files;
    const std::chrono::milliseconds Patience; // with whoever has locked a database
    std::vector<Branch> Branches;
    check::Report Report;
};

// Whether a field or a box leads anywhere.
bool IsLink(const QString& number);

} // namespace lineforge::check
