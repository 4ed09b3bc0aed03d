#pragma once

#include "platform/machine/Clipboard.h"

#include <optional>

namespace lineforge
{

// A clipboard of the test's own.
class FakeClipboard : public Clipboard
{
public:
    void Clear() override
    {
        Text.reset();
        Picture = {};
    }
    void SetText(const QString& text) override { Text = text; }
    bool HasText() const override { return Text.has_value(); }
    QString GetText() const override { return Text.value_or(QString()); }
    void SetPicture(const QImage& picture) override { Picture = picture; }
    bool HasPicture() const override { return !Picture.isNull(); }
    QImage GetPicture() const override { return Picture; }

    std::optional<QString> Text;
    QImage Picture;
};

} // namespace lineforge
