#include "qt/views/DirectoryView.h"

#include "platform/files/DirectoryRows.h"
#include "qt/events/Keys.h"

#include <QKeyEvent>
#include <QStyle>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int pathRole = Qt::UserRole;
constexpr int blanksADepth = 2;
} // namespace

DirectoryView::DirectoryView(QWidget* parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    setIconSize(QSize(1, 1) * fontMetrics().height());
    connect(this, &QListWidget::itemClicked, this, [this] { Clicked(); });
    connect(this, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem* item) { Choose(item); });
}

void DirectoryView::ShowDirectory(const QString& path)
{
    path_ = path;
    if (isVisible())
        ReadDisk();
}

void DirectoryView::ReadDisk()
{
    clear();
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirIcon);
    for (const DirectoryRow& row : DirectoryRows(path_)) {
        const QString indent(row.Depth * blanksADepth, u' ');
        auto* item = new QListWidgetItem(row.IsOpen ? open : closed, indent + row.Name, this);
        item->setData(pathRole, row.Path);
        item->setData(Qt::AccessibleTextRole, row.Name);
        if (row.IsOpen)
            setCurrentItem(item);
    }
}

void DirectoryView::Choose(const QListWidgetItem* item)
{
    if (item)
        Chosen(item->data(pathRole).toString());
}

void DirectoryView::keyPressEvent(QKeyEvent* event)
{
    if (!IsPressKey(event->key()))
        return QListWidget::keyPressEvent(event);
    Clicked();
    if (event->key() != Qt::Key_Space)
        Choose(currentItem());
}

void DirectoryView::showEvent(QShowEvent* event)
{
    ReadDisk();
    QListWidget::showEvent(event);
}

} // namespace lineforge
