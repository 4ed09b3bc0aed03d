#pragma once

#include <QListWidget>

#include <functional>

namespace lineforge
{

// Shows a directory with those above it and those in it. A double click on a line, or Enter, chooses it. Space is a
// click, and so is the first half of Enter.
class DirectoryView : public QListWidget
{
public:
    explicit DirectoryView(QWidget* parent);

    // The line of that directory becomes the current one. The disk is read while there is somebody to see it.
    void ShowDirectory(const QString& path);

    std::function<void()> Clicked;
    std::function<void(const QString& directory)> Chosen;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Directories may have come and gone while it was hidden.
    void showEvent(QShowEvent* event) override;

private:
    void ReadDisk();
    void Choose(const QListWidgetItem* item);

    QString path_;
};

} // namespace lineforge
