#pragma once

#include "support/TemporaryHome.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace lineforge::monkey
{

// A directory that a session does with as it likes: a home, and elsewhere what a user brings along. Nothing outside of
// it is ever offered to the program.
class Scratch
{
public:
    explicit Scratch(QString directory) : directory_(std::move(directory)) {}

    const QString& Directory() const { return directory_; }
    QString Home() const { return directory_ + QStringLiteral("/home"); }
    QString Elsewhere() const { return directory_ + QStringLiteral("/elsewhere"); }
    // Where the desktop would put things without asking.
    QString User() const { return directory_ + QStringLiteral("/user"); }
    QString JournalFile() const { return directory_ + QStringLiteral("/journal"); }
    QString LedgerFile() const { return directory_ + QStringLiteral("/ledger"); }
    QString ChosenFile() const { return directory_ + QStringLiteral("/chosen"); }
    QString ErrorsFile() const { return directory_ + QStringLiteral("/errors"); }

    bool Contains(const QString& path) const;
    // All of it into a directory that isn't there yet.
    void CopyTo(const QString& directory) const;

    // The files of home and elsewhere with that ending, case ignored; all of them for none.
    QStringList Files(const QString& ending) const;

    // By the names that a journal has for them.
    QMap<QString, QString> Places() const { return {{directory_, QStringLiteral("~")}}; }

private:
    QString directory_;
};

// What every session begins with, made once: branches of all kinds in the home, one of them of an older installation;
// elsewhere branches to be imported, another home, pictures, sounds, GEDCOM files, and files that are nothing of what
// they are called.
class Pristine
{
public:
    Pristine();
    // Fills a directory that isn't there yet.
    void CopyTo(const QString& directory) const;

private:
    TemporaryHome root_;
};

} // namespace lineforge::monkey
