#pragma once

#include "platform/machine/Clipboard.h"

namespace lineforge
{

// The desktop's clipboard.
class QtClipboard : public Clipboard
{
public:
    void Clear() override;
    void SetText(const QString& text) override;
    bool HasText() const override;
    QString GetText() const override;
    void SetPicture(const QImage& picture) override;
    bool HasPicture() const override;
    QImage GetPicture() const override;
};

} // namespace lineforge
