#include "qt/machine/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace lineforge
{

void QtClipboard::Clear()
{
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::SetText(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
}

bool QtClipboard::HasText() const
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasText();
}

QString QtClipboard::GetText() const
{
    return QGuiApplication::clipboard()->text();
}

void QtClipboard::SetPicture(const QImage& picture)
{
    QGuiApplication::clipboard()->setImage(picture);
}

bool QtClipboard::HasPicture() const
{
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    return content && content->hasImage();
}

QImage QtClipboard::GetPicture() const
{
    return QGuiApplication::clipboard()->image();
}

} // namespace lineforge
