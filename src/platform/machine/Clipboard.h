#pragma once

#include <QImage>
#include <QString>

namespace lineforge
{

// What the user carries from program to program. It holds a text or a picture, or neither.
class Clipboard
{
public:
    virtual ~Clipboard() = default;

    virtual void Clear() = 0;
    virtual void SetText(const QString& text) = 0;
    virtual bool HasText() const = 0;
    virtual QString GetText() const = 0;
    virtual void SetPicture(const QImage& picture) = 0;
    virtual bool HasPicture() const = 0;
    virtual QImage GetPicture() const = 0;
};

} // namespace lineforge
