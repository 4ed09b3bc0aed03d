#pragma once

#include <QString>

namespace lineforge::monkey
{

// What the files held that the user has chosen, when he chose them. It stands in a file of its own and outlives the
// session's process.
class ChosenFiles
{
public:
    explicit ChosenFiles(QString file) : file_(std::move(file)) {}

    // A path that leads to no file is no choice.
    void Note(const QString& path) const;
    // Whether that file is, to the last byte, one of them: the user's own, whatever it is called now.
    bool Hold(const QString& path) const;

private:
    QString file_;
};

} // namespace lineforge::monkey
