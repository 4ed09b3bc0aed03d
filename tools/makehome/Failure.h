#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace lineforge::makehome
{

// One exception for everything that stops a build: the message is written for the person who edits the sources, so it
// names the file and the line wherever there is one.
class Failure : public std::exception
{
public:
    explicit Failure(const QString& message);

    const char* what() const noexcept override;

private:
    QByteArray m_text;
};

Failure FailureAt(const QString& path, qsizetype line, const QString& message);

} // namespace lineforge::makehome
