#include "Architecture.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace lineforge::architecture
{

using namespace Qt::StringLiterals;

namespace
{
using Graph = QMap<QString, QStringList>;

// Every room, from the ground up, and the rooms whose headers it includes. A wing is what stands before the first `/`.
struct Room {
    QString Name;
    QStringList Uses;
};

// What a room uses stands further up in this table, so that nothing runs up and there is no circle.
const QList<Room>& Rooms()
{
    static const QList<Room> rooms{
        {u"platform/base"_s, {}},
        {u"platform/files"_s, {u"platform/base"_s}},
        {u"printing"_s, {}},
        {u"editor"_s, {u"platform/base"_s, u"platform/files"_s, u"printing"_s}},
        {u"platform/drawing"_s, {u"platform/base"_s, u"platform/files"_s}},
        {u"platform/store"_s, {u"platform/base"_s, u"platform/files"_s}},
        {u"jet"_s, {u"platform/base"_s, u"platform/store"_s}},
        {u"platform/controls"_s, {u"platform/base"_s, u"platform/drawing"_s, u"platform/store"_s}},
        {u"platform/canvas"_s, {u"platform/controls"_s, u"platform/drawing"_s}},
        {u"forms"_s, {u"platform/canvas"_s, u"platform/controls"_s, u"platform/drawing"_s, u"platform/store"_s}},
        {u"platform/machine"_s,
         {u"platform/base"_s, u"platform/canvas"_s, u"platform/controls"_s, u"platform/drawing"_s}},
        {u"qt/style"_s, {u"platform/canvas"_s, u"platform/drawing"_s}},
        {u"program/state"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/controls"_s, u"platform/drawing"_s, u"platform/files"_s,
          u"platform/machine"_s, u"platform/store"_s}},
        {u"qt/events"_s, {u"platform/controls"_s, u"platform/machine"_s}},
        {u"qt/machine"_s,
         {u"platform/base"_s, u"platform/files"_s, u"platform/machine"_s, u"printing"_s, u"qt/style"_s}},
        {u"program/ui"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/controls"_s, u"platform/machine"_s, u"program/state"_s}},
        {u"qt/dialogs"_s,
         {u"platform/canvas"_s, u"platform/machine"_s, u"qt/events"_s, u"qt/machine"_s, u"qt/style"_s}},
        {u"qt/views"_s,
         {u"platform/canvas"_s, u"platform/controls"_s, u"platform/files"_s, u"platform/store"_s, u"qt/events"_s,
          u"qt/style"_s}},
        {u"gedcom/report"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/files"_s, u"platform/machine"_s, u"program/state"_s,
          u"program/ui"_s}},
        {u"program/branch"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/controls"_s, u"platform/files"_s, u"platform/machine"_s,
          u"platform/store"_s, u"program/state"_s, u"program/ui"_s}},
        {u"qt/media"_s,
         {u"platform/base"_s, u"platform/controls"_s, u"platform/drawing"_s, u"platform/files"_s, u"qt/views"_s}},
        {u"qt/pictures"_s,
         {u"platform/canvas"_s, u"platform/controls"_s, u"platform/files"_s, u"qt/events"_s, u"qt/style"_s,
          u"qt/views"_s}},
        {u"qt/text"_s, {u"platform/base"_s, u"platform/controls"_s, u"qt/events"_s, u"qt/style"_s, u"qt/views"_s}},
        {u"compare"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/controls"_s, u"platform/drawing"_s, u"platform/files"_s,
          u"platform/machine"_s, u"platform/store"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"gallery"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/controls"_s, u"platform/drawing"_s, u"platform/files"_s,
          u"platform/machine"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"gedcom/writer"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/files"_s, u"platform/machine"_s, u"platform/store"_s,
          u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"map/items"_s,
         {u"forms"_s, u"platform/base"_s, u"platform/canvas"_s, u"platform/drawing"_s, u"platform/files"_s,
          u"platform/machine"_s, u"platform/store"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"qt/windows"_s,
         {u"platform/canvas"_s, u"platform/controls"_s, u"qt/events"_s, u"qt/media"_s, u"qt/pictures"_s, u"qt/style"_s,
          u"qt/text"_s, u"qt/views"_s}},
        {u"check"_s,
         {u"gallery"_s, u"map/items"_s, u"platform/base"_s, u"platform/drawing"_s, u"platform/files"_s,
          u"platform/store"_s, u"program/branch"_s, u"program/state"_s}},
        {u"map/subjects"_s,
         {u"forms"_s, u"map/items"_s, u"platform/base"_s, u"platform/drawing"_s, u"platform/files"_s,
          u"platform/machine"_s, u"platform/store"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"output"_s,
         {u"forms"_s, u"map/items"_s, u"platform/base"_s, u"platform/files"_s, u"platform/machine"_s,
          u"platform/store"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"qt"_s,
         {u"platform/machine"_s, u"qt/dialogs"_s, u"qt/machine"_s, u"qt/media"_s, u"qt/style"_s, u"qt/windows"_s}},
        {u"map/tools"_s,
         {u"forms"_s, u"map/items"_s, u"map/subjects"_s, u"platform/drawing"_s, u"platform/store"_s,
          u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"interchange"_s,
         {u"forms"_s, u"map/subjects"_s, u"map/tools"_s, u"platform/base"_s, u"platform/files"_s, u"platform/machine"_s,
          u"platform/store"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"records"_s,
         {u"forms"_s, u"gallery"_s, u"map/items"_s, u"map/subjects"_s, u"map/tools"_s, u"output"_s, u"platform/base"_s,
          u"platform/machine"_s, u"platform/store"_s, u"program/branch"_s, u"program/state"_s, u"program/ui"_s}},
        {u"shell/branches"_s,
         {u"compare"_s, u"forms"_s, u"gallery"_s, u"map/items"_s, u"map/subjects"_s, u"map/tools"_s, u"platform/base"_s,
          u"platform/files"_s, u"platform/machine"_s, u"platform/store"_s, u"program/branch"_s, u"program/state"_s,
          u"program/ui"_s}},
        {u"shell/run"_s,
         {u"forms"_s, u"gallery"_s, u"gedcom/report"_s, u"map/items"_s, u"map/subjects"_s, u"map/tools"_s,
          u"platform/base"_s, u"platform/controls"_s, u"platform/drawing"_s, u"platform/machine"_s, u"platform/store"_s,
          u"program/branch"_s, u"program/state"_s, u"program/ui"_s, u"records"_s, u"shell/branches"_s}},
        {u"shell/handlers"_s,
         {u"compare"_s, u"forms"_s, u"gallery"_s, u"gedcom/report"_s, u"gedcom/writer"_s, u"interchange"_s,
          u"map/items"_s, u"map/subjects"_s, u"map/tools"_s, u"output"_s, u"program/state"_s, u"program/ui"_s,
          u"records"_s, u"shell/branches"_s, u"shell/run"_s}},
        {u"main"_s,
         {u"forms"_s, u"platform/base"_s, u"program/state"_s, u"qt"_s, u"shell/handlers"_s, u"shell/run"_s}}};
    return rooms;
}

// The room that a file stands in: its folder; `main` for what stands in none.
QString RoomOf(const QString& file)
{
    return file.contains(u'/') ? file.section(u'/', 0, -2) : file.section(u'.', 0, 0);
}

QString WingOf(const QString& file)
{
    return RoomOf(file).section(u'/', 0, 0);
}

const Room* FindRoom(const QString& name)
{
    const auto room = std::ranges::find(Rooms(), name, &Room::Name);
    return room == Rooms().end() ? nullptr : &*room;
}

bool IsAllowed(const QString& from, const QString& to)
{
    const Room* room = FindRoom(from);
    return from == to || (room && room->Uses.contains(to));
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
// A header and its source are one.
QString UnitOf(const QString& file)
{
    return file.section(u'.', 0, 0);
}

QStringList CirclesOf(const Sources& sources, QString (*groupOf)(const QString&))
{
    const Graph files = GraphOfFiles(sources);
    Graph groups;
    for (auto file = files.begin(); file != files.end(); ++file)
        for (const QString& target : file.value()) {
            const QString from = groupOf(file.key());
            const QString to = groupOf(target);
            if (from != to && !groups[from].contains(to))
                groups[from].push_back(to);
        }
    return CircleSearch(groups).Found;
}
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
        if (QStringList{u"qt"_s, u"editor"_s, u"printing"_s, u"main"_s}.contains(WingOf(source.key())))
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
        if (!FindRoom(RoomOf(file)))
            findings.push_back(file + u" stands in no room"_s);
    const Graph graph = GraphOfFiles(sources);
    for (auto file = graph.begin(); file != graph.end(); ++file)
        for (const QString& target : file.value())
            if (!IsAllowed(RoomOf(file.key()), RoomOf(target)))
                findings.push_back(file.key() + u" includes "_s + target);
    return findings;
}

QStringList RoomsFromTheGroundUp()
{
    QStringList names;
    for (const Room& room : Rooms())
        names.push_back(room.Name);
    return names;
}

QStringList RoomsThatUseWhatIsAbove()
{
    QStringList findings;
    QStringList below;
    for (const Room& room : Rooms()) {
        for (const QString& used : room.Uses)
            if (!below.contains(used))
                findings.push_back(room.Name + u" uses "_s + used);
        below.push_back(room.Name);
    }
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

QStringList CirclesOfUnits(const Sources& sources)
{
    return CirclesOf(sources, UnitOf);
}

QStringList CirclesOfRooms(const Sources& sources)
{
    return CirclesOf(sources, RoomOf);
}

QStringList CirclesOfWings(const Sources& sources)
{
    return CirclesOf(sources, WingOf);
}

} // namespace lineforge::architecture
