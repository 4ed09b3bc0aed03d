#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace lineforge::tour
{

// A home of the tour's own: a copy of what is installed, with the example branches in it. All of it goes with this
// object.
class ScratchHome
{
public:
    explicit ScratchHome(const QString& installed);

    QString Executable() const { return In(QStringLiteral("lineforge")); }
    QString Directory() const { return In({}); }
    // Where the toolkit may keep what it remembers of the user's dialogs.
    QString SettingsDirectory() const;
    // Another home, with branches that exist by name only.
    QString MakeAnotherHome(const QStringList& branches) const;

    bool Has(const QString& file) const;
    QByteArray Read(const QString& file) const;
    // The file as it is in the example home, which nobody touches.
    QByteArray Example(const QString& file) const;
    QStringList AliasLines() const;
    // The branches of the home in the order of its list.
    QStringList BranchNames() const;

private:
    QString In(const QString& file) const;

    QTemporaryDir directory_;
    QString examples_;
};

// What a branch's map is kept in, from the home directory on.
QString MapFileOf(QChar branch);

} // namespace lineforge::tour
