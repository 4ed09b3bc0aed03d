#include "qt/dialogs/HelpWindow.h"

#include "qt/dialogs/HelpBook.h"
#include "qt/style/Desktop.h"
#include "qt/style/Outlines.h"

#include <QAction>
#include <QEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int placeRole = Qt::UserRole;

// Pixels.
constexpr int letterStep = 2;
constexpr int smallestLetters = 6;
constexpr int largestLetters = 72;

// The toolkit's dark themes keep its dark blue for links.
QString LinkColour(const QPalette& palette)
{
    const bool isDark = palette.base().color().lightness() < 128;
    return (isDark ? Mixed(palette.link().color(), Qt::white, 0.35F) : palette.link().color()).name();
}

// The pages bring no colours: these are the user's own, so that a dark desktop has a dark manual.
QString StyleSheetIn(const QPalette& palette)
{
    const QColor base = palette.base().color();
    const QColor text = palette.text().color();
    return u"a { color: %1; }"
           u"p.note { background-color: %2; }"
           u"dt { font-weight: bold; margin-top: 10px; }"
           u"table { border-collapse: collapse; border: 1px solid %3; margin-top: 6px; margin-bottom: 6px; }"
           u"td { border: 1px solid %3; padding: 4px; }"
           u"th { border: 1px solid %3; padding: 4px; text-align: left; background-color: %2; }"_s.arg(
               LinkColour(palette), Mixed(text, base, 0.1F).name(), Mixed(text, base, 0.35F).name());
}

void Describe(QWidget& widget, const QString& objectName, const QString& accessibleName)
{
    widget.setObjectName(objectName);
    widget.setAccessibleName(accessibleName);
}
} // namespace

HelpWindow::HelpWindow()
    : browser_(new QTextBrowser), contents_(new QTreeWidget), hits_(new QListWidget), search_(new QLineEdit),
      side_(new QStackedWidget)
{
    setObjectName(u"HelpWindow"_s);
    BuildMiddle();
    BuildCommands();
    TakeColours();
    const int line = fontMetrics().lineSpacing();
    resize(QSize(60 * line, 42 * line).boundedTo(RoomOn(*screen())));
}

HelpWindow::~HelpWindow() = default;

void HelpWindow::BuildMiddle()
{
    Describe(*browser_, u"HelpText"_s, tr("Page"));
    browser_->document()->setDocumentMargin(12);
    // One that comes with a page takes of its width, which tables notice only when the window changes.
    browser_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // Links lead through the manual and nowhere else.
    browser_->setOpenLinks(false);
    connect(browser_, &QTextBrowser::anchorClicked, this, &HelpWindow::GoTo);
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::Follow);

    auto* middle = new QSplitter;
    middle->addWidget(BuildSide());
    middle->addWidget(browser_);
    constexpr int side = 1;
    constexpr int page = 3; // so that its pictures have room on a small screen, too
    middle->setStretchFactor(0, side);
    middle->setStretchFactor(1, page);
    const int unit = 15 * fontMetrics().lineSpacing();
    middle->setSizes({side * unit, page * unit});
    middle->setChildrenCollapsible(false);
    setCentralWidget(middle);
}

QWidget* HelpWindow::BuildSide()
{
    Describe(*search_, u"HelpSearch"_s, tr("Search the help"));
    search_->setPlaceholderText(tr("Search"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::ShowHits);
    connect(search_, &QLineEdit::returnPressed, this, &HelpWindow::GoToHits);
    new QShortcut(Qt::Key_Down, search_, this, &HelpWindow::GoToHits, Qt::WidgetShortcut);

    Describe(*contents_, u"HelpContents"_s, tr("Contents"));
    contents_->setHeaderHidden(true);
    const auto goToEntry = [this](QTreeWidgetItem* entry) { GoTo(entry->data(0, placeRole).toUrl()); };
    connect(contents_, &QTreeWidget::itemActivated, this, goToEntry);
    connect(contents_, &QTreeWidget::itemClicked, this, goToEntry);

    Describe(*hits_, u"HelpHits"_s, tr("Found"));
    hits_->setWordWrap(true);
    const auto goToHit = [this](QListWidgetItem* hit) { GoTo(hit->data(placeRole).toUrl()); };
    connect(hits_, &QListWidget::itemActivated, this, goToHit);
    connect(hits_, &QListWidget::itemClicked, this, goToHit);

    side_->addWidget(contents_);
    side_->addWidget(hits_);
    auto* side = new QWidget;
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins({});
    column->addWidget(search_);
    column->addWidget(side_);
    return side;
}

void HelpWindow::BuildCommands()
{
    QToolBar& bar = *addToolBar(tr("Commands"));
    bar.setMovable(false);
    // Not by the toolkit's own menu either: nothing could bring it back.
    bar.toggleViewAction()->setEnabled(false);
    bar.setContextMenuPolicy(Qt::PreventContextMenu);
    QAction* back = bar.addAction(tr("Back"), QKeySequence::Back, browser_, &QTextBrowser::backward);
    QAction* forward = bar.addAction(tr("Forward"), QKeySequence::Forward, browser_, &QTextBrowser::forward);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar.addAction(tr("Contents"), Qt::ALT | Qt::Key_Home, this, &HelpWindow::GoToContentsPage);

    const std::pair<QList<QKeySequence>, void (HelpWindow::*)()> keys[] = {
        {{QKeySequence::Find}, &HelpWindow::GoToSearch},
        {{Qt::Key_F3}, &HelpWindow::NextHit},
        {{Qt::SHIFT | Qt::Key_F3}, &HelpWindow::PreviousHit},
        {{Qt::Key_Escape}, &HelpWindow::LeaveSearchOrWindow},
        {{Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, &HelpWindow::Enlarge},
        {{Qt::CTRL | Qt::Key_Minus}, &HelpWindow::Reduce},
        {{Qt::CTRL | Qt::Key_0}, &HelpWindow::ResetSize},
    };
    for (const auto& [shortcuts, run] : keys) {
        auto* command = new QAction(this);
        command->setShortcuts(shortcuts);
        connect(command, &QAction::triggered, this, run);
        addAction(command);
    }
}

bool HelpWindow::Open(const QString& path)
{
    std::unique_ptr<HelpBook> book = HelpBook::Open(path);
    if (!book)
        return false;
    // The book before goes at the end, when nothing of it is on show any more.
    std::swap(book_, book);
    search_->clear();
    FillContents();
    GoToContentsPage();
    browser_->clearHistory();
    contents_->setFocus();
    return true;
}

void HelpWindow::FillContents()
{
    contents_->clear();
    for (const HelpChapter& chapter : book_->Chapters()) {
        auto* entry = new QTreeWidgetItem(contents_, {chapter.Title});
        entry->setData(0, placeRole, book_->ContentsPage());
        for (const HelpPage& page : chapter.Pages)
            AddPage(*entry, page);
        entry->setExpanded(true);
    }
}

void HelpWindow::AddPage(QTreeWidgetItem& chapter, const HelpPage& page)
{
    auto* entry = new QTreeWidgetItem(&chapter, {page.Beginning().Title});
    entry->setData(0, placeRole, page.Beginning().Place);
    for (std::size_t at = 1; at < page.Sections.size(); ++at) {
        auto* section = new QTreeWidgetItem(entry, {page.Sections[at].Title});
        section->setData(0, placeRole, page.Sections[at].Place);
    }
}

void HelpWindow::GoTo(const QUrl& place)
{
    if (book_->Has(place))
        browser_->setSource(place);
}

void HelpWindow::GoToContentsPage()
{
    GoTo(book_->ContentsPage());
}

// However the user came to the place: the title, the contents and the marks tell of it.
void HelpWindow::Follow(const QUrl& place)
{
    setWindowTitle(browser_->documentTitle());
    contents_->setCurrentItem(ContentsEntryFor(place));
    MarkHits();
}

// That of the section, or else of the page.
QTreeWidgetItem* HelpWindow::ContentsEntryFor(const QUrl& place) const
{
    QTreeWidgetItem* ofPage = nullptr;
    for (QTreeWidgetItemIterator each(contents_); *each; ++each) {
        const QUrl entry = (*each)->data(0, placeRole).toUrl();
        const bool isChapter = !(*each)->parent();
        if (!isChapter && entry == place)
            return *each;
        if (!isChapter && !ofPage && entry.path() == place.path())
            ofPage = *each;
    }
    return ofPage;
}

void HelpWindow::ShowHits()
{
    hits_->clear();
    const bool isSearching = !search_->text().trimmed().isEmpty();
    side_->setCurrentWidget(isSearching ? static_cast<QWidget*>(hits_) : contents_);
    if (isSearching) {
        for (const HelpHit& hit : book_->Find(search_->text())) {
            auto* entry = new QListWidgetItem(hit.Title, hits_);
            entry->setData(placeRole, hit.Place);
        }
        if (hits_->count() == 0) {
            auto* nothing = new QListWidgetItem(tr("Nothing found"), hits_);
            nothing->setFlags(Qt::NoItemFlags);
        }
    }
    MarkHits();
}

void HelpWindow::GoToSearch()
{
    search_->setFocus();
    search_->selectAll();
}

// To the first of them; the others are an arrow key away.
void HelpWindow::GoToHits()
{
    if (!hits_->item(0) || !hits_->item(0)->flags().testFlag(Qt::ItemIsEnabled))
        return;
    hits_->setCurrentRow(0);
    hits_->setFocus();
    GoTo(hits_->currentItem()->data(placeRole).toUrl());
}

void HelpWindow::LeaveSearchOrWindow()
{
    if (search_->text().isEmpty())
        close();
    search_->clear();
    contents_->setFocus();
}

void HelpWindow::MarkHits()
{
    marked_.clear();
    for (const QString& word : search_->text().simplified().split(u' ', Qt::SkipEmptyParts)) {
        QTextCursor hit = browser_->document()->find(word);
        for (; !hit.isNull(); hit = browser_->document()->find(word, hit))
            marked_.append(hit);
    }
    std::ranges::sort(marked_, {}, &QTextCursor::selectionStart);
    // Paler than a selection, which tells on which of them the user stands.
    const QColor colour = Mixed(palette().highlight().color(), palette().base().color(), 0.4F);
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& hit : marked_) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = hit;
        mark.format.setBackground(colour);
        marks.append(mark);
    }
    browser_->setExtraSelections(marks);
}

// The mark on which the user stands, or else the top of what is on show.
QTextCursor HelpWindow::Here() const
{
    const QTextCursor stands = browser_->textCursor();
    return stands.hasSelection() ? stands : browser_->cursorForPosition({});
}

// The first one that doesn't begin before that place.
QList<QTextCursor>::const_iterator HelpWindow::MarkFrom(int position) const
{
    return std::ranges::find_if(marked_, [=](const QTextCursor& hit) { return hit.selectionStart() >= position; });
}

void HelpWindow::NextHit()
{
    const auto next = MarkFrom(Here().selectionEnd());
    if (!marked_.isEmpty())
        StandOn(next == marked_.cend() ? marked_.constFirst() : *next);
}

void HelpWindow::PreviousHit()
{
    const auto after = MarkFrom(Here().selectionStart());
    if (!marked_.isEmpty())
        StandOn(after == marked_.cbegin() ? marked_.constLast() : *std::prev(after));
}

void HelpWindow::StandOn(const QTextCursor& hit)
{
    browser_->setTextCursor(hit);
    browser_->ensureCursorVisible();
}

void HelpWindow::Enlarge()
{
    SetLetters(browser_->fontInfo().pixelSize() + letterStep);
}

void HelpWindow::Reduce()
{
    SetLetters(browser_->fontInfo().pixelSize() - letterStep);
}

// The toolkit's own steps know nothing of fonts that are told in pixels, as the program's are.
void HelpWindow::SetLetters(int pixels)
{
    QFont font = browser_->font();
    font.setPixelSize(std::clamp(pixels, smallestLetters, largestLetters));
    browser_->setFont(font);
}

void HelpWindow::ResetSize()
{
    browser_->setFont(font());
}

void HelpWindow::TakeColours()
{
    browser_->document()->setDefaultStyleSheet(StyleSheetIn(palette()));
    if (!book_)
        return;
    const int place = browser_->verticalScrollBar()->value();
    browser_->reload();
    browser_->verticalScrollBar()->setValue(place);
}

void HelpWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        TakeColours();
}

} // namespace lineforge
