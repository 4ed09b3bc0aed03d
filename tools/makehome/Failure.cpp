#include "Failure.h"

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

Failure::Failure(const QString& message) : m_text(message.toLocal8Bit()) {}

const char* Failure::what() const noexcept
{
    return m_text.constData();
}

Failure FailureAt(const QString& path, qsizetype line, const QString& message)
{
    return Failure(u"%1:%2: %3"_s.arg(path).arg(line).arg(message));
}

} // namespace lineforge::makehome
