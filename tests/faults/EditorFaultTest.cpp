#include "editor/EditorTest.h"
#include "faults/FailingDisk.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPrintDialog>

#include <climits>
#include <utility>

// What the text editor makes of a disk that refuses any one of its writes, or all from one on: each file is what it
// was or what it was to become, the text stays in the window, and the user is told.
namespace lineforge::faults
{
namespace
{

using namespace Qt::StringLiterals;

// Agrees to everything, names one file wherever one is to be named, and remembers what went wrong.
class WillingUser : public DialogWatch
{
public:
    QString Named;
    QStringList Told;

private:
    void Meet(QDialog& dialog) override
    {
        if (auto* box = qobject_cast<QMessageBox*>(&dialog))
            Agree(*box);
        else if (auto* file = qobject_cast<QFileDialog*>(&dialog))
            Name(*file, u"fileNameEdit"_s);
        else if (auto* paper = qobject_cast<QPrintDialog*>(&dialog))
            Name(*paper, u"filename"_s);
    }

    void Agree(QMessageBox& box)
    {
        if (box.icon() == QMessageBox::Critical)
            Told += box.text();
        for (const auto button : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::Save})
            if (box.button(button))
                return Press(box, button);
    }

    void Name(QDialog& dialog, const QString& field) const
    {
        In<QLineEdit>(dialog, field).setText(Named);
        PressKey(dialog, Qt::Key_Return);
    }
};

struct Deed {
    const char* Name;
    QStringView File; // that it writes
    QString Do;       // a command of the menu, or nothing to open the file
};

void PrintTo(const Deed& deed, std::ostream* out)
{
    *out << deed.Name;
}

class EditorFaultTest : public EditorTest, public testing::WithParamInterface<Deed>
{
protected:
    struct Run {
        bool WasReached = false;
        QStringList Told;
        Tree Files;
    };

    // With a text that has been typed into, beside another one and a paper.
    Run RunWith(int number, Fault fault)
    {
        for (const QString& file : Home.Snapshot().keys())
            QFile::remove(Home.Path(file));
        Editor.show();
        Home.WriteFile(u"other.txt", "another text");
        Home.WriteFile(u"paper.pdf", "an older paper");
        OpenFile(u"a.txt", "old");
        Type(u"new "_s);
        WillingUser user;
        user.Named = Home.Path(GetParam().File);
        const FailingDisk failing(Home.Path(), number, fault);
        Do();
        return {failing.HasBegun(), user.Told, Home.Snapshot()};
    }

    void Do()
    {
        if (!GetParam().Do.isEmpty())
            Choose(GetParam().Do);
        else
            Editor.OpenOrMake(Home.Path(GetParam().File));
    }

    static bool IsPaper(const QString& file) { return file.endsWith(u".pdf"); }

    // A paper bears the time at which it was printed.
    static bool AreSame(const QString& file, const QByteArray& bytes, const QByteArray& meant)
    {
        if (!IsPaper(file) || !meant.startsWith("%PDF-"))
            return bytes == meant;
        return bytes.startsWith("%PDF-") && bytes.trimmed().endsWith("%%EOF") && bytes.size() == meant.size();
    }

    // Unless nothing is amiss. A text that isn't saved is one that can still be saved.
    void ExpectTold(const Run& run, const Tree& meant)
    {
        if (run.Told.isEmpty())
            return ExpectWhole(meant, {}, run.Files);
        EXPECT_EQ(run.Told.size(), 1) << qUtf8Printable(run.Told.join(u'\n'));
        EXPECT_TRUE(IsModified() || GetParam().Do.isEmpty());
    }

    static void ExpectWhole(const Tree& files, const Tree& before, const Tree& meant)
    {
        for (auto file = files.begin(); file != files.end(); ++file)
            EXPECT_TRUE((before.contains(file.key()) && *file == before[file.key()]) ||
                        (meant.contains(file.key()) && AreSame(file.key(), *file, meant[file.key()])))
                << qUtf8Printable(file.key()) << ": " << file->constData();
        for (const QString& file : before.keys())
            EXPECT_TRUE(files.contains(file)) << qUtf8Printable(file);
    }
};

TEST_P(EditorFaultTest, LeavesNothingTorn_AndIsTold)
{
    const Run untouched = RunWith(1, Fault::FromThatOn);
    ASSERT_TRUE(untouched.WasReached) << "nothing is written";
    const Run clean = RunWith(INT_MAX, Fault::OneTime);
    EXPECT_EQ(clean.Told, QStringList());
    ASSERT_NE(clean.Files, untouched.Files);
    for (const Fault fault : {Fault::OneTime, Fault::FromThatOn})
        for (int number = 1; !HasFailure(); ++number) {
            SCOPED_TRACE(testing::Message() << "write " << number << (fault == Fault::OneTime ? "" : " and all after"));
            const Run run = RunWith(number, fault);
            if (!run.WasReached)
                break;
            ExpectWhole(run.Files, untouched.Files, clean.Files);
            ExpectTold(run, clean.Files);
        }
}

INSTANTIATE_TEST_SUITE_P(Deeds, EditorFaultTest,
                         testing::Values(Deed{"Save", u"a.txt", u"Save"_s}, Deed{"SaveAs", u"b.txt", u"SaveAs"_s},
                                         Deed{"SaveAsAnother", u"other.txt", u"SaveAs"_s},
                                         Deed{"SaveWhenLeft", u"a.txt", u"Exit"_s},
                                         Deed{"SaveBeforeANewOne", u"a.txt", u"New"_s}, Deed{"Make", u"b.txt", {}},
                                         Deed{"PrintToFile", u"paper.pdf", u"Print"_s}),
                         [](const auto& tested) { return std::string(tested.param.Name); });

} // namespace
} // namespace lineforge::faults
