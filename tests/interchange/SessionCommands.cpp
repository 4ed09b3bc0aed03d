#include "interchange/SessionModel.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QStringView databases = u"DataBase *.mdb|*.mdb|All Files|*.*|";

bool Same(const QString& a, const QString& b)
{
    return a.toLower() == b.toLower();
}

QString GalleryOf(const QString& directory)
{
    return directory + u"/LfgGal_" + directory.back();
}
} // namespace

// False: the last letter is in use.
bool SessionModel::MarkLetters()
{
    QStringList names = EntriesOf({});
    std::ranges::sort(names, [](const QString& a, const QString& b) { return a.toLower() < b.toLower(); });
    for (const QString& name : names) {
        if (!IsDirectory(name) || !Same(name.left(7), u"LFGDAT_"_s))
            continue;
        if (Same(name, u"LFGDAT_Z"_s)) {
            Tell(u"Directory Table Full."_s,
                 u"Last Directory(LFGDAT_Z) used. You need to have space for a new directory(maximum 26 "
                 u"allowed).Contact software vendor for support."_s);
            return false;
        }
        taken_ << name.back().toUpper();
    }
    return true;
}

void SessionModel::TellEmpty()
{
    Tell(u"Database Empty"_s, u"This Database has no records to access"_s);
}

// False when the directory is there, or can't be made.
bool SessionModel::MakeBranch(const QString& name, const QString& directory)
{
    if (IsFile(directory)) {
        prompts_.Expect(u"Lineforge",
                        QString(u"Run-time error '75':\n\nPath/File access error\n\n"
                                u"This can't be opened, made, changed or removed:\n" +
                                root_ + u'/' + directory),
                        Buttons::Error);
        isEnded_ = true;
        return false;
    }
    BranchName = name;
    WorkDir = directory;
    if (IsDirectory(directory)) {
        Tell(u"Error Setting New Directory"_s, u" sDir & ' directory already exists.'"_s);
        return false;
    }
    Files[directory] = "<dir>";
    Files[GalleryOf(directory)] = "<dir>";
    Files[directory + u'/' + directory + u".cfg"] = Files[u"LfgEmpt.~cf"_s];
    Files[directory + u'/' + directory + u".mdb"] = Files[u"LfgEmpt.~Md"_s];
    Database = root_ + u'/' + directory + u'/' + directory + u".mdb";
    return true;
}

void SessionModel::New()
{
    if (!WorkDir.isEmpty())
        SaveBoxes();
    map_ = {};
    Current = root_;
    if (!MarkLetters())
        return;
    char16_t letter = u'A';
    while (taken_.contains(QChar(letter)))
        ++letter;
    const QString directory = u"LfgDat_"_s + QChar(letter);
    const QString name = AskName(u"New Tree Branch name", u"Enter the name for this new Tree Branch Map");
    if (name.isEmpty())
        return;
    const QString text = u"New '"_s + name +
                         u"' Tree Branch Database and new map file will be \nplaced in new Directory " + root_ + u'/' +
                         directory + u".\nNew '" + name +
                         u"' Subject and Gallery files will be copied to this \ndirectory when presented.";
    if (!Asks(name + u" Tree Branch new Directory and Files", text, Buttons::InformationOkCancel, Answer::Ok,
              Answer::Cancel, directory) ||
        !MakeBranch(name, directory))
        return;
    TouchExportWindow();
    isExportWindowShown_ = false;
    AddAlias(name, directory);
    ReadMap();
    TellEmpty();
}

void SessionModel::ShowList()
{
    if (!WorkDir.isEmpty())
        SaveBoxes();
}

// False when the database can't be opened.
bool SessionModel::Enter(const QString& name, const QString& directory)
{
    BranchName = name;
    map_ = {};
    WorkDir = directory;
    const QString file = u"LfgDat_"_s + directory.back() + u".mdb";
    Database = file;
    if (IsDirectory(directory))
        Current = root_ + u'/' + Found(directory);
    if (!known_.contains(Files.value(Found(directory + u'/' + file)))) {
        Tell(u"Read Only or Incorrect Database"_s, u"Cannot open this database"_s);
        return false;
    }
    ReadMap();
    return true;
}

void SessionModel::ShowFirst()
{
    const QString first = known_[Files[Found(WorkDir + u"/LfgDat_" + WorkDir.back() + u".mdb")]].FirstRecord;
    if (first.isEmpty())
        TellEmpty();
    else if (!IsFile(WorkDir + u'/' + first + u"Sub.Jpg"))
        Tell(u"Image not Present"_s, u"Searched Image File for "_s + first + u"Sub.Jpg");
}

// The first entry that begins with the row's text wins.
void SessionModel::Open(const QString& row)
{
    if (row.isEmpty())
        return;
    for (const QString& entry : AliasTable) {
        if (entry.isEmpty())
            return;
        if (!entry.startsWith(row))
            continue;
        if (Enter(row, entry.right(8)))
            ShowFirst();
        return;
    }
}

void SessionModel::Close()
{
    SaveBoxes();
    map_ = {};
    WorkDir.clear();
    Database.clear();
    CancelExport();
}

void SessionModel::TouchExportWindow()
{
    if (!isExportWindowLoaded_)
        Listed = Current;
    isExportWindowLoaded_ = true;
}

void SessionModel::CancelExport()
{
    isExportWindowLoaded_ = false;
    isExportWindowShown_ = false;
}

bool SessionModel::IsBranchDatabase(const QString& database, const QString& notDatabase)
{
    if (!IsFile(Relative(database)))
        Tell(u"File not present."_s, u"File not found."_s);
    else if (!Same(database.right(3), u"mdb"_s))
        Tell(u"Database not selected."_s, notDatabase);
    else if (!Same(database.right(12).left(7), u"LfgDat_"_s))
        Tell(u"Database not selected."_s, u" Must select an 'LfgDat_[]' File"_s);
    else
        return true;
    return false;
}

bool SessionModel::TellIfOpen()
{
    if (!Same(Database, source_) && !Same(Database, source_.right(12)))
        return false;
    Tell(u"Database Open."_s, u"Must close this database to Export Files."_s);
    return true;
}

void SessionModel::ChooseExport(const std::optional<QString>& database)
{
    prompts_.ExpectOpenFile(u"Select Export Database source File", databases, database);
    if (!database)
        return;
    source_ = *database;
    if (!IsBranchDatabase(source_, u" Must select a database"_s) || TellIfOpen())
        return;
    TouchExportWindow();
    GoTo(root_);
    Current = root_;
    isExportWindowShown_ = true;
}

void SessionModel::GoTo(const QString& directory)
{
    if (directory == Listed || !IsDirectory(Relative(directory)))
        return;
    Listed = directory;
    Path = directory;
}

// False when one is there already, or can't be made.
bool SessionModel::MakeDirectory(const QString& directory, const QString& title, const QString& exists)
{
    const QString place = Relative(directory);
    if (IsDirectory(place)) {
        Tell(title, exists);
    } else if (IsFile(place)) {
        TellError(75, u"Path/File access error"_s);
    } else if (!IsDirectory(place.contains(u'/') ? place.left(place.lastIndexOf(u'/')) : QString())) {
        TellError(76, u"Path not found"_s);
    } else {
        Files[place] = "<dir>";
        return true;
    }
    return false;
}

void SessionModel::Export()
{
    const QString title = u"Error Creating New Directory"_s;
    const QString directory = Path + source_.right(22).left(9);
    isExportWindowShown_ = false;
    if (TellIfOpen() ||
        !MakeDirectory(directory, title,
                       directory + u" directory already exists.\nYou must first delete this Directory."))
        return;
    if (!Asks(u"Export Directory and Files"_s,
              u"Database and files will be placed in\n"_s + directory + u"\ndirectory. ", Buttons::InformationOkCancel,
              Answer::Ok, Answer::Cancel))
        return;
    const QString from = source_.chopped(13);
    CopyFiles(Relative(from), Relative(directory));
    const QString gallery = GalleryOf(directory);
    if (MakeDirectory(gallery, title,
                      gallery + u" Directory already exists.\nYou must first move or delete this Directory."))
        CopyFiles(Relative(GalleryOf(from)), Relative(gallery));
}

void SessionModel::Import(const std::optional<QString>& database)
{
    TouchExportWindow();
    prompts_.ExpectOpenFile(u"Select Import Database File", databases, database);
    if (!database || !IsBranchDatabase(*database, u" Must select a database *.mdb file"_s))
        return;
    const QChar letter = database->right(12)[7];
    const QString source = database->chopped(13);
    Current = root_;
    QString target = u"LfgDat_"_s + letter;
    if (std::ranges::any_of(AliasTable, [&](const QString& entry) { return Same(entry.section(u'=', 1), target); })) {
        target = u"Import_"_s + letter;
        Tell(u"Import database name in use"_s,
             u"This database is already present in the Home Directory and will be placed in: "_s + target +
                 u" Directory");
    }
    const QString name = AskName(u"Imported Tree Branch alternate name",
                                 u"Enter alternate user friendly name for this imported Tree Branch Map.");
    if (name.isEmpty() ||
        !Asks(u"New Directory and Files"_s,
              u"Imported '"_s + name + u"' Database and files will be placed in\ndirectory " + root_ + u'/' + target,
              Buttons::InformationOkCancel, Answer::Ok, Answer::Cancel) ||
        !MakeDirectory(root_ + u'/' + target, u"Error Setting New Directory"_s,
                       target + u" directory already exists. Must first delete this Database."))
        return;
    Files[GalleryOf(target)] = "<dir>";
    CopyFiles(Relative(source), target);
    CopyFiles(Relative(source + u"/LfgGal_" + letter), GalleryOf(target));
    AddAlias(name, target);
    if (Enter(name, target))
        ShowFirst();
}

void SessionModel::Delete()
{
    if (WorkDir.isEmpty())
        return Tell(u"Data not available"_s, u"Cannot View until database file is Opened"_s);
    const QString name = NameOf(WorkDir);
    const QString text =
        u"Do you really want to delete the Database\nand Gallery files in '"_s + name + u"' Tree Branch ?";
    const QString again = u"All files in "_s + root_ + u'/' + WorkDir + u"\n'" + name +
                          u"' Ancestral Tree Branch will be deleted.\n"
                          u"This includes the Database, Gallery and its Directories\n"
                          u"Are you sure this is what you want ? ";
    if (!Asks(u"Delete '"_s + name + u"' DataBase and Galleries", text, Buttons::QuestionYesNo, Answer::Yes,
              Answer::No) ||
        !Asks(u"Deletion of '"_s + name + u"' Database, Gallery and Files", again, Buttons::ErrorYesNo, Answer::Yes,
              Answer::No))
        return;
    RemoveWithFiles(GalleryOf(WorkDir));
    RemoveAlias(name, WorkDir);
    RemoveWithFiles(WorkDir);
    WorkDir.clear();
    Current = root_;
}

// False when it can't be done, which ends a backup.
bool SessionModel::CopyBackup(const QString& from, const QString& to)
{
    const QString place = Relative(to);
    if (!IsFile(from) || IsDirectory(place) ||
        !IsDirectory(place.left(std::max<qsizetype>(0, place.lastIndexOf(u'/')))))
        return false;
    Files[Found(place)] = Files[Found(from)];
    return true;
}

void SessionModel::BackUp(const std::optional<QString>& chosen)
{
    if (Database.isEmpty())
        return Tell(u"Data not available"_s, u"Cannot View until database file is Opened"_s);
    Tell(u"Backup Database"_s,
         u"Backup will copy your current Database File \nand Tree Config file to your chosen destination."_s);
    WriteMap();
    prompts_.ExpectSaveFile(u"Select Backup Destination Directory", databases, chosen);
    if (!chosen || chosen->size() < 4 || WorkDir.isEmpty())
        return;
    const QString stem = WorkDir + u"/LfgDat_" + WorkDir.back();
    const QString target = chosen->chopped(4);
    if (CopyBackup(stem + u".mdb", target + u".~md"))
        CopyBackup(stem + u".cfg", target + u".~cf");
}

} // namespace lineforge
