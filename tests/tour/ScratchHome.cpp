#include "ScratchHome.h"

#include "Failure.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString aliasList = u"AliasList.cfg"_s;
constexpr qsizetype aliasEntries = 2; // the line of the list that holds the branches

void CopyFile(const QString& from, const QString& to)
{
    QDir().mkpath(QFileInfo(to).path());
    QFile::remove(to);
    Expect(QFile::copy(from, to), u"to copy "_s + from + u" to "_s + to);
}

void CopyFiles(const QDir& from, const QDir& to, QDirIterator::IteratorFlag depth)
{
    QDirIterator files(from.path(), QDir::Files | QDir::Hidden, depth);
    while (files.hasNext()) {
        const QString file = files.next();
        CopyFile(file, to.filePath(from.relativeFilePath(file)));
    }
}

QByteArray ReadWhole(const QString& path)
{
    QFile file(path);
    Expect(file.open(QIODevice::ReadOnly), u"to read "_s + path);
    return file.readAll();
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    Expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), u"to write "_s + path);
}
} // namespace

ScratchHome::ScratchHome(const QString& installed) : examples_(QDir(installed).absoluteFilePath(u"examples"_s))
{
    Expect(directory_.isValid(), u"room for a scratch home"_s);
    const QDir source(installed);
    const QDir examples(examples_);
    Expect(QFileInfo(source.filePath(u"lineforge"_s)).isExecutable(), u"the program in "_s + installed);
    Expect(QFileInfo::exists(examples.filePath(aliasList)), u"the example home in "_s + examples.path());
    CopyFiles(source, QDir(Directory()), QDirIterator::NoIteratorFlags);
    for (const QString& broughtAlong : {u"lib"_s, u"plugins"_s}) // by a bundle
        CopyFiles(QDir(source.filePath(broughtAlong)), QDir(In(broughtAlong)), QDirIterator::Subdirectories);
    CopyFiles(examples, QDir(Directory()), QDirIterator::Subdirectories);
    QDir().mkpath(SettingsDirectory());
}

QString ScratchHome::In(const QString& file) const
{
    return directory_.filePath(u"home/"_s + file);
}

QString ScratchHome::SettingsDirectory() const
{
    return directory_.filePath(u"settings"_s);
}

QString ScratchHome::MakeAnotherHome(const QStringList& branches) const
{
    QString home = directory_.filePath(u"another"_s);
    QDir().mkpath(home);
    QString entries;
    char16_t letter = u'A';
    for (const QString& branch : branches)
        entries += branch + u"=LfgDat_"_s + QChar(letter++) + u',';
    Write(home + u'/' + aliasList, "A list of branches\r\n[Alias]\r\n[" + entries.toUtf8() + "]\r\n[CFG]\r\n[1,]\r\n");
    return home;
}

bool ScratchHome::Has(const QString& file) const
{
    return QFileInfo::exists(In(file));
}

QByteArray ScratchHome::Read(const QString& file) const
{
    return ReadWhole(In(file));
}

QByteArray ScratchHome::Example(const QString& file) const
{
    return ReadWhole(examples_ + u'/' + file);
}

QStringList ScratchHome::AliasLines() const
{
    QStringList lines = QString::fromUtf8(Read(aliasList)).split(u'\n');
    for (QString& line : lines)
        line = line.trimmed();
    return lines;
}

QStringList ScratchHome::BranchNames() const
{
    const QStringList lines = AliasLines();
    Expect(lines.size() > aliasEntries && lines[aliasEntries].size() > 2, u"a list of branches"_s);
    QStringList names;
    for (const QString& entry : lines[aliasEntries].sliced(1).chopped(1).split(u',', Qt::SkipEmptyParts))
        names += entry.section(u'=', 0, 0);
    return names;
}

QString MapFileOf(QChar branch)
{
    return u"LfgDat_%1/LfgDat_%1.cfg"_s.arg(branch);
}

} // namespace lineforge::tour
