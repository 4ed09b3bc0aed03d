#include "qt/windows/ListBuilder.h"

#include "qt/views/AccessibleName.h"
#include "qt/views/ClickableWidgets.h"
#include "qt/views/DirectoryView.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>

namespace lineforge
{

namespace
{
void Select(QListWidget& list, int index)
{
    const QSignalBlocker quiet(list);
    list.setCurrentRow(index >= 0 && index < list.count() ? index : -1);
}

int SelectedRow(const QListWidget& list)
{
    const QList<QListWidgetItem*> selected = list.selectedItems();
    return selected.isEmpty() ? -1 : list.row(selected.first());
}
} // namespace

void BuildWidget(const BuildSite& site, ListBox& list)
{
    auto* view = new QListWidget(site.Parent);
    view->setUniformItemSizes(true);
    view->setSpacing(1);
    site.Bindings.Follow(list.Items, [view, &list] {
        const QSignalBlocker quiet(view);
        view->clear();
        view->addItems(list.Items);
        Select(*view, list.ListIndex);
    });
    site.Bindings.Follow(list.ListIndex, [view, &list] { Select(*view, list.ListIndex); });
    QObject::connect(view, &QListWidget::itemSelectionChanged, view, [gate = site.Gate, view, &list] {
        gate->Run([view, &list] { list.ListIndex = SelectedRow(*view); });
    });
    QObject::connect(view, &QListWidget::itemDoubleClicked, view,
                     [gate = site.Gate, &list] { gate->Run(list.DblClick); });
    OnEnter(*view, [gate = site.Gate, view, &list] {
        if (SelectedRow(*view) >= 0)
            gate->Run(list.DblClick);
    });
    site.NameForReaders(view, list);
    site.Dress(view, list);
}

void BuildWidget(const BuildSite& site, DriveList& list)
{
    auto* view = new QComboBox(site.Parent);
    site.Bindings.Follow(list.Drives, [view, &list] {
        view->clear();
        view->addItems(list.Drives);
        view->setCurrentText(list.Drive);
    });
    site.Bindings.Follow(list.Drive, [view, &list] { view->setCurrentText(list.Drive); });
    QObject::connect(view, &QComboBox::textActivated, view, [gate = site.Gate, &list](const QString& drive) {
        gate->Run([&list, drive] { list.Choose(drive); });
    });
    site.NameForReaders(view, list);
    site.Dress(view, list);
    // Readers are told what is chosen in the place of a name, and look for the label.
    if (const Label* label = LabelOf(list, *site.Container))
        site.Parent->findChild<QLabel*>(label->Name, Qt::FindDirectChildrenOnly)->setBuddy(view);
}

void BuildWidget(const BuildSite& site, DirectoryList& list)
{
    auto* view = new DirectoryView(site.Parent);
    site.Bindings.Follow(list.Path, [view, &list] { view->ShowDirectory(list.Path); });
    view->Clicked = [gate = site.Gate, &list] { gate->Run(list.Click); };
    view->Chosen = [gate = site.Gate, &list](const QString& directory) {
        gate->Run([&list, directory] { list.GoTo(directory); });
    };
    site.NameForReaders(view, list);
    site.Dress(view, list);
}

} // namespace lineforge
