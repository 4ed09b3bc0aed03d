#pragma once

#include <QListWidget>

#include <functional>

namespace lineforge
{

// Shows a directory with those above it and those in it. A double click on a line, or Enter, chooses it.
class DirectoryView : public QListWidget
{
public:
    explicit DirectoryView(QWidget* parent);

    // Reads the disk. The line of that directory becomes the current one.
    void ShowDirectory(const QString& path);

    std::function<void()> Clicked;
    std::function<void(const QString& directory)> Chosen;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    // Directories may have come and gone while it was hidden.
    void showEvent(QShowEvent* event) override;

private:
    void Choose(const QListWidgetItem* item);

    QString path_;
};

} // namespace lineforge
