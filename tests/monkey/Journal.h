#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace lineforge::monkey
{

// What happened in a session, a line each, on the disk before anything follows from it: it outlives the session's
// process, whatever ends that.
class Journal
{
public:
    // Continues the file. `places` are called by shorter names, so that the journals of two sessions can be compared.
    Journal(const QString& file, QMap<QString, QString> places);
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // Numbers it.
    void Step(const QString& words);
    // What belongs to the step.
    void Note(const QString& words);
    // How a run of the program ended.
    void End(const QString& kind);
    // What must not be.
    void Finding(const QString& words);

    int Steps() const { return steps_; }

private:
    void Write(QString line);

    int file_;
    QMap<QString, QString> places_;
    int steps_ = 0;
};

// A journal as it was left.
struct Story {
    explicit Story(const QString& file);

    QStringList Last(qsizetype lines) const;
    // Whether the user was asked about an export into that directory, by the name that the journal has for it.
    bool TellsOfExportTo(const QString& directory) const;
    // Whether he was asked the last question before the branch in that directory is deleted.
    bool TellsOfDeletionOf(const QString& directory) const;

    QStringList Lines;
    int Steps = 0;
    QStringList Ends;
    QStringList Findings;
};

} // namespace lineforge::monkey
