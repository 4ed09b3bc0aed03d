#include "gedcom/report/GedSource.h"

#include "platform/base/RuntimeError.h"

namespace lineforge
{

void GedSource::Open()
{
    if (isOpen_)
        throw RuntimeError(ErrorNumber::FileAlreadyOpen);
    isOpen_ = true;
    at_ = 0;
    line_ = 0;
}

void GedSource::RequireOpen() const
{
    if (!isOpen_)
        throw RuntimeError(ErrorNumber::BadFileNumber);
}

bool GedSource::AtEnd() const
{
    RequireOpen();
    return at_ == bytes_.size();
}

char GedSource::Next()
{
    if (AtEnd())
        throw RuntimeError(ErrorNumber::InputPastEnd);
    return bytes_[at_++];
}

const GedLines& GedSource::Lines()
{
    RequireOpen();
    // Not before the first seek: a file that is refused is never read by lines.
    if (!lines_)
        lines_.emplace(bytes_);
    return *lines_;
}

} // namespace lineforge
