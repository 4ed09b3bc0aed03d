#include "Architecture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <optional>

namespace lineforge::architecture
{

using namespace Qt::StringLiterals;

namespace
{
using Graph = QMap<QString, QStringList>;

const QString main = u"main"_s;
const QString qtFolder = u"platform/qt"_s;
const QString editor = u"editor"_s;
const QString jet = u"jet"_s;
const QString check = u"check"_s;

// The tower, from the ground up; folders of one storey know nothing of each other.
const QList<QStringList> storeys{{u"platform"_s},
                                 {u"forms"_s},
                                 {u"program"_s},
                                 {u"map"_s, u"gedcom"_s, u"gallery"_s, u"compare"_s},
                                 {u"output"_s, u"interchange"_s},
                                 {u"records"_s},
                                 {u"shell"_s},
                                 {qtFolder, editor, jet, check, main}};

// The folder that a file counts to: the first part of its path, but platform/qt is one of its own.
QString FolderOf(const QString& file)
{
    if (file.startsWith(qtFolder + u'/'))
        return qtFolder;
    return file.contains(u'/') ? file.section(u'/', 0, 0) : file.section(u'.', 0, 0);
}

std::optional<qsizetype> StoreyOf(const QString& folder)
{
    for (qsizetype storey = 0; storey < storeys.size(); ++storey)
        if (storeys[storey].contains(folder))
            return storey;
    return {};
}

bool IsAllowed(const QString& from, const QString& to)
{
    if (from == to)
        return true;
    if (from == qtFolder || from == editor || from == jet)
        return to == u"platform";
    if (to == qtFolder)
        return from == main;
    if (to == editor || to == jet)
        return false;
    const auto upper = StoreyOf(from);
    const auto lower = StoreyOf(to);
    return upper && lower && *lower < *upper;
}

// What the quoted includes of a text name. A file that the meta-object compiler makes is no source.
QStringList NamedIncludes(const QString& text)
{
    static const QRegularExpression include(uR"re(^[ \t]*#[ \t]*include[ \t]*"([^"]+)")re"_s,
                                            QRegularExpression::MultilineOption);
    QStringList names;
    for (auto matches = include.globalMatch(text); matches.hasNext();)
        if (const QString name = matches.next().captured(1); !name.endsWith(u".moc"))
            names.push_back(name);
    return names;
}

// The path below src/ that an include leads to: next to the file first, as the compiler looks, else from the root.
QString Target(const Sources& sources, const QString& file, const QString& name)
{
    const QString beside = QDir::cleanPath(file.section(u'/', 0, -2) + u'/' + name);
    const QString besideInRoot = beside.startsWith(u'/') ? beside.sliced(1) : beside;
    return sources.contains(besideInRoot) ? besideInRoot : QDir::cleanPath(name);
}

Graph GraphOfFiles(const Sources& sources)
{
    Graph graph;
    for (auto source = sources.begin(); source != sources.end(); ++source)
        for (const QString& name : NamedIncludes(source.value()))
            if (const QString target = Target(sources, source.key(), name); sources.contains(target))
                graph[source.key()].push_back(target);
    return graph;
}

// Looks for circles by walking every way on from each node once.
class CircleSearch
{
public:
    explicit CircleSearch(const Graph& graph) : graph_(graph)
    {
        for (const QString& node : graph.keys())
            Visit(node);
    }

    QStringList Found;

private:
    void Visit(const QString& node)
    {
        if (const qsizetype at = way_.indexOf(node); at >= 0) {
            Found.push_back((way_.sliced(at) + QStringList(node)).join(u" -> "));
            return;
        }
        if (done_.contains(node))
            return;
        way_.push_back(node);
        for (const QString& next : graph_.value(node))
            Visit(next);
        way_.pop_back();
        done_.insert(node);
    }

    const Graph& graph_;
    QStringList way_;
    QSet<QString> done_;
};
} // namespace

Sources ReadSources(const QString& directory)
{
    Sources sources;
    QDirIterator files(directory, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QFile::ReadOnly))
            sources.insert(QDir(directory).relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll()));
    }
    return sources;
}

QStringList WidgetsBelowTheLine(const Sources& sources)
{
    static const QRegularExpression words(
        u"\\b(?:QtWidgets|QWidget|QMessageBox|QFileDialog|QPrinter|QApplication|QtMultimedia|QtPrintSupport|QMedia\\w*)\\b"_s);
    QStringList findings;
    for (auto source = sources.begin(); source != sources.end(); ++source) {
        const QString folder = FolderOf(source.key());
        if (folder == qtFolder || folder == editor || folder == main)
            continue;
        if (const auto match = words.match(source.value()); match.hasMatch())
            findings.push_back(source.key() + u" names "_s + match.captured());
    }
    return findings;
}

QStringList IncludesAgainstTheTower(const Sources& sources)
{
    QStringList findings;
    for (const QString& file : sources.keys())
        if (!StoreyOf(FolderOf(file)))
            findings.push_back(file + u" has no place in the tower"_s);
    const Graph graph = GraphOfFiles(sources);
    for (auto file = graph.begin(); file != graph.end(); ++file)
        for (const QString& target : file.value())
            if (!IsAllowed(FolderOf(file.key()), FolderOf(target)))
                findings.push_back(file.key() + u" includes "_s + target);
    return findings;
}

QStringList DanglingIncludes(const Sources& sources)
{
    QStringList findings;
    for (auto source = sources.begin(); source != sources.end(); ++source)
        for (const QString& name : NamedIncludes(source.value()))
            if (!sources.contains(Target(sources, source.key(), name)))
                findings.push_back(source.key() + u" includes "_s + name + u", which isn't there"_s);
    return findings;
}

QStringList CirclesOfFiles(const Sources& sources)
{
    return CircleSearch(GraphOfFiles(sources)).Found;
}

QStringList CirclesOfFolders(const Sources& sources)
{
    const Graph files = GraphOfFiles(sources);
    Graph folders;
    for (auto file = files.begin(); file != files.end(); ++file)
        for (const QString& target : file.value()) {
            const QString from = FolderOf(file.key());
            const QString to = FolderOf(target);
            if (from != to && !folders[from].contains(to))
                folders[from].push_back(to);
        }
    return CircleSearch(folders).Found;
}

} // namespace lineforge::architecture
