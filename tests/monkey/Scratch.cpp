#include "monkey/Scratch.h"

#include "support/BranchBuilder.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        qFatal("can't read %s", qUtf8Printable(path));
    return file.readAll();
}

void CopyFixedFiles(TemporaryHome& root, const QString& home)
{
    for (const QFileInfo& file : QDir(QStringLiteral(LINEFORGE_FIXED_FILES)).entryInfoList(QDir::Files))
        root.WriteFile(QString(home + u'/' + file.fileName()), BytesOf(file.filePath()));
    // Nobody looks at what the editor does.
    root.WriteFile(QString(home + u"/Notepad.exe"), {});
#ifdef LINEFORGE_JET
    QFile::link(QStringLiteral(LINEFORGE_JET), root.Path(QString(home + u"/lineforge-jet")));
#endif
}

void WriteRegistry(TemporaryHome& root, const QString& home, const QString& branches, int noSplash)
{
    const QStringList lines{u"This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY."_s,
                            u"[Alias]"_s,
                            u'[' + branches + u']',
                            u"[CFG]"_s,
                            u"[%1,]"_s.arg(noSplash),
                            {}};
    root.WriteFile(QString(home + u"/AliasList.cfg"), lines.join(u"\r\n"_s).toUtf8());
}

// A family of several generations, some of whom are on the map of the branch, with another branch's people among them.
void BuildSmiths(TemporaryHome& root)
{
    const QByteArray picture = PictureBytes(Qt::darkGreen, {400, 300});
    const QString examples = QStringLiteral(LINEFORGE_EXAMPLE_GALLERY);
    BranchBuilder(root, u'A')
        .InDirectory(u"home/LfgDat_A")
        .Row({{u"File", u"A001"},
              {u"Forename", u"John"},
              {u"Surname", u"Smith"},
              {u"Gender", u"Male"},
              {u"BirthDate", u"3 May 1871"},
              {u"BirthPlace", u"York"},
              {u"SpouseRec", u"A002"},
              {u"Children", u"Paul, Ann"},
              {u"Notes", u"Weaver in York"}})
        .Row({{u"File", u"A002"},
              {u"Forename", u"Mary"},
              {u"Surname", u"Smith"},
              {u"Gender", u"Female"},
              {u"Maiden", u"Jones"},
              {u"SpouseRec", u"A001"},
              {u"FatherRec", u"B001"}})
        .Row({{u"File", u"A003"},
              {u"Forename", u"Paul"},
              {u"Surname", u"Smith"},
              {u"Gender", u"Male"},
              {u"FatherRec", u"A001"},
              {u"MotherRec", u"A002"}})
        .Row({{u"File", u"A004"}, {u"Forename", u"Mary Louise"}, {u"Surname", u"Smith"}, {u"FatherRec", u"A003"}})
        .Row({{u"File", u"A005"}, {u"Surname", u"Smith"}, {u"FatherRec", u"A003"}})
        .Row({{u"File", u"A006"}, {u"Forename", u"Christopher"}, {u"Surname", u"Weaver"}, {u"Gender", u"Male"}})
        .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,1800,1500,255,A003,Paul,600,2400,16711680,A004,Mary,"
               u"3600,600,255,B001,Ann,3000,2400,255,0,,4200,2400,32768,0,,")
        .Lines(u"1935,700,2400,700,0,1800,700,1800,1500,0,")
        .Texts(u"1000,100,The Smiths,Arial,14,255,")
        .Picture(u"A001", Qt::red)
        .Picture(u"A002", Qt::blue)
        .Picture(u"A003", Qt::gray)
        .Picture(u"A004", Qt::yellow)
        .Gallery({{u"A001_01.jpg"_s, picture},
                  {u"A001_02.jpg"_s, PictureBytes(Qt::blue, {4000, 300})},
                  {u"A001_03.wav"_s, BytesOf(examples + u"/A001_04.wav")},
                  {u"A001_04.avi"_s, BytesOf(examples + u"/A001_05.avi")},
                  {u"A001_05.txt"_s, "John was a weaver.\r\n"},
                  {u"A002_01.jpg"_s, picture},
                  {u"A003_02.jpg"_s, picture}})
        .Build();
}

void BuildJoneses(TemporaryHome& root, QStringView directory, QChar letter)
{
    const auto number = [letter](int value) -> QString {
        return letter + QString::number(value).rightJustified(3, u'0');
    };
    BranchBuilder(root, letter)
        .InDirectory(directory)
        .Row({{u"File", number(1)}, {u"Forename", u"Ann"}, {u"Surname", u"Jones"}, {u"Notes", u"Born in Leeds"}})
        .Row({{u"File", number(2)}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"BirthDate", u"4 May 1871"}})
        .Row({{u"File", number(3)}, {u"Forename", u"Mary"}, {u"Surname", u"Smith"}, {u"Maiden", u"Jones"}})
        .Boxes(QString(u"1200,1500,255,%1,Ann,2400,1500,255,A001,John,"_s.arg(number(1))))
        .Picture(number(1), Qt::green)
        .Picture(number(2), Qt::red)
        .Picture(number(3), Qt::cyan)
        .Gallery({{QString(number(1) + u"_01.jpg"), PictureBytes(Qt::green)}})
        .Build();
}

void BuildHome(TemporaryHome& root)
{
    CopyFixedFiles(root, u"home"_s);
    BuildSmiths(root);
    BuildJoneses(root, u"home/LfgDat_B", u'B');
    BranchBuilder(root, u'C').InDirectory(u"home/LfgDat_C").Gallery().Build();
    BuildJoneses(root, u"home/Import_A", u'A');
    QString branches = u"Smiths=LfgDat_A,Jones=LfgDat_B,Nobody=LfgDat_C,Brought along=Import_A,"_s;
#ifdef LINEFORGE_JET
    BranchBuilder old(root, u'D');
    old.InDirectory(u"home/LfgDat_D").Boxes(u"1200,600,255,A001,Victoria,").Gallery().Build();
    root.WriteFile(old.DatabaseFile(), BytesOf(QStringLiteral(JET_FIXTURES "/jet4/royals12.mdb")));
    branches += u"Royals=LfgDat_D,"_s;
#endif
    WriteRegistry(root, u"home"_s, branches, 1);
}

QByteArray GedcomBytes()
{
    QStringList lines{u"0 HEAD"_s, u"1 SOUR A PROGRAM"_s, u"1 CHAR ANSEL"_s};
    for (int person = 1; person <= 6; ++person)
        lines += {u"0 @I%1@ INDI"_s.arg(person),
                  u"1 NAME Person%1 /Smith/"_s.arg(person),
                  u"1 SEX M"_s,
                  u"1 BIRT"_s,
                  u"2 DATE %1 MAY 1850"_s.arg(person),
                  u"2 PLAC York"_s,
                  u"1 FAMS @F%1@"_s.arg(1 + person / 4)};
    for (int family = 1; family <= 2; ++family)
        lines += {u"0 @F%1@ FAM"_s.arg(family),
                  u"1 HUSB @I%1@"_s.arg(family),
                  u"1 WIFE @I%1@"_s.arg(family + 1),
                  u"1 CHIL @I%1@"_s.arg(family + 3),
                  u"1 MARR"_s,
                  u"2 DATE 4 JUN 1875"_s};
    lines += {u"0 TRLR"_s, {}};
    return lines.join(u"\r\n"_s).toLatin1();
}

// Names are long enough for what cuts an ending off them to stay within.
void BuildElsewhere(TemporaryHome& root)
{
    BuildJoneses(root, u"elsewhere/brought/LfgDat_E", u'E');
    BuildJoneses(root, u"elsewhere/brought/LfgDat_B", u'B');
    CopyFixedFiles(root, u"elsewhere/other-home"_s);
    BuildJoneses(root, u"elsewhere/other-home/LfgDat_A", u'A');
    WriteRegistry(root, u"elsewhere/other-home"_s, u"Others=LfgDat_A,"_s, 0);

    const QString examples = QStringLiteral(LINEFORGE_EXAMPLE_GALLERY);
    const QMap<QString, QByteArray> files{{u"portrait.jpg"_s, PictureBytes(Qt::magenta, {120, 160})},
                                          {u"portrait-large.jpg"_s, PictureBytes(Qt::darkRed, {2400, 1800})},
                                          {u"no-picture-at-all.jpg"_s, "no picture"},
                                          {u"empty-picture.jpg"_s, {}},
                                          {u"speech.wav"_s, BytesOf(examples + u"/A001_04.wav")},
                                          {u"no-sound-at-all.wav"_s, "no sound"},
                                          {u"garden.avi"_s, BytesOf(examples + u"/A001_05.avi")},
                                          {u"no-film-at-all.avi"_s, "no film"},
                                          {u"letter-home.txt"_s, "Dear all,\r\n"},
                                          {u"family-tree.ged"_s, GedcomBytes()},
                                          {u"family-tree-cut.ged"_s, GedcomBytes().first(300)},
                                          {u"no-family-tree.ged"_s, "no family"},
                                          {u"no-database-at-all.mdb"_s, "no database"},
                                          {u"strange-ending.xyz"_s, "strange"}};
    for (auto file = files.begin(); file != files.end(); ++file)
        root.WriteFile(QString(u"elsewhere/things/" + file.key()), *file);
    root.MakeDirectory(u"elsewhere/new-files");
    root.MakeDirectory(u"user");
}
} // namespace

bool Scratch::Contains(const QString& path) const
{
    return QDir::cleanPath(path).startsWith(directory_ + u'/');
}

QStringList Scratch::Files(const QString& ending) const
{
    QStringList found;
    for (const QString& directory : {Home(), Elsewhere()})
        for (QDirIterator files(directory, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
            if (const QString path = files.next(); path.endsWith(ending, Qt::CaseInsensitive))
                found += path;
    found.sort();
    return found;
}

void Scratch::CopyTo(const QString& directory) const
{
    namespace fs = std::filesystem;
    fs::create_directories(fs::path(directory.toStdString()).parent_path());
    fs::copy(directory_.toStdString(), directory.toStdString(),
             fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

Pristine::Pristine()
{
    BuildHome(root_);
    BuildElsewhere(root_);
}

void Pristine::CopyTo(const QString& directory) const
{
    Scratch(root_.Path()).CopyTo(directory);
}

} // namespace lineforge::monkey
