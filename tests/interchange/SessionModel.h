#pragma once

#include "support/ScriptedPrompts.h"
#include "support/TemporaryHome.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace lineforge
{

// Whoever sits before the program.
class SessionUser
{
public:
    virtual ~SessionUser() = default;
    virtual bool Confirms() = 0;
    virtual QString Name() = 0; // of a new or an imported branch; empty for Cancel
    // Whether the directory that is to be made appears while the question about it is open.
    virtual bool IsForestalled() = 0;
};

// What a database is to the program that opens it.
struct KnownDatabase {
    QString FirstRecord; // empty: it has none
};

// The registry and the directories as New, Open, Close, Export, Import, Delete and Backup leave them, told step by step
// and without a line of the program's own. Each command asks the user, and writes question and answer into the script
// by which the program is asked afterwards. Paths are relative to the home, unless they are told otherwise.
class SessionModel
{
public:
    // The home's own path, without a trailing separator, and what stands in it.
    SessionModel(QString root, Tree files, ScriptedPrompts& prompts, SessionUser& user);

    // Any other file isn't a database.
    void Know(const QByteArray& database, const KnownDatabase& known) { known_[database] = known; }

    void New();
    void ShowList();
    // The list's button, with that row selected; an empty text for none.
    void Open(const QString& row);
    void Close();
    void ChooseExport(const std::optional<QString>& database); // nothing for a cancelled dialog
    void GoTo(const QString& directory);
    void ClickDirectory() { Path = Listed; }
    void Export();
    void CancelExport();
    void Import(const std::optional<QString>& database);
    void Delete();
    void BackUp(const std::optional<QString>& chosen);

    // The rows of the list of branches when it is filled now.
    QStringList ListRows() const;
    bool IsExportWindowShown() const { return isExportWindowShown_; }
    // Whether the program has ended by an error that nothing meets.
    bool IsEnded() const { return isEnded_; }

    Tree Files;
    QString AliasList;
    QStringList AliasTable;
    QString WorkDir;    // a name in the home; empty for none
    QString Database;   // `sDbaseName`
    QString BranchName; // `sBranchName`
    QString Path;       // `sPath`, absolute
    QString Current;    // the current directory, absolute
    QString Listed;     // where the directory list of the export window stands, absolute

private:
    struct Map {
        QString Boxes, Lines, Texts; // the lists of the file
        QString Rows;                // the boxes in memory, as the file would list them
        QString Owner;               // whose map it is; empty for none
        bool IsPart = false;         // the file that it was read from is no whole map
        bool KeepsNext = true;       // the file that it is written to becomes the generation before
    };

    // SessionModel.cpp: what the commands have in common.
    void Tell(const QString& title, const QString& text);
    void TellError(int number, const QString& text);
    bool Asks(const QString& title, const QString& text, Buttons buttons, Answer yes, Answer no,
              const QString& forestalled = {});
    QString Found(const QString& path) const;
    bool IsDirectory(const QString& path) const;
    bool IsFile(const QString& path) const;
    QStringList EntriesOf(const QString& directory) const;
    QString Relative(const QString& path) const;
    void CopyFiles(const QString& from, const QString& to);
    void RemoveWithFiles(const QString& directory);
    void ReadList();
    void WriteList();
    QString NameOf(const QString& directory) const;
    bool IsListed(const QString& name) const;
    bool IsRefused(const QString& name) const;
    QString AskName(QStringView title, QStringView prompt);
    void AddAlias(const QString& name, const QString& directory);
    void RemoveAlias(const QString& name, const QString& directory);
    void WriteMap();
    void SaveBoxes();
    void ReadMap();

    // SessionCommands.cpp.
    bool MarkLetters();
    bool MakeBranch(const QString& name, const QString& directory);
    void TellEmpty();
    bool Enter(const QString& name, const QString& directory);
    void ShowFirst();
    bool TellIfOpen();
    bool IsBranchDatabase(const QString& database, const QString& notDatabase);
    void TouchExportWindow();
    bool MakeDirectory(const QString& directory, const QString& title, const QString& exists);
    bool CopyBackup(const QString& from, const QString& to);

    QString root_;
    ScriptedPrompts& prompts_;
    SessionUser& user_;
    QMap<QByteArray, KnownDatabase> known_;
    Map map_;
    QSet<QChar> taken_;
    QString source_; // `sExportSource`, absolute
    bool isExportWindowLoaded_ = false;
    bool isExportWindowShown_ = false;
    bool isEnded_ = false;
};

} // namespace lineforge
