#include "platform/qt/HelpWindow.h"

#include "platform/TextFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTextBrowser>

namespace lineforge
{

using namespace Qt::StringLiterals;

HelpWindow::HelpWindow() : browser_(new QTextBrowser(this))
{
    setObjectName(u"HelpWindow"_s);
    browser_->setObjectName(u"HelpText"_s);
    browser_->setAccessibleName(tr("Help"));
    browser_->document()->setDocumentMargin(16);
    setCentralWidget(browser_);
    const int line = fontMetrics().lineSpacing();
    resize(50 * line, 42 * line);
}

bool HelpWindow::Open(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    browser_->setSearchPaths({QFileInfo(path).absolutePath()});
    browser_->setHtml(DecodeText(file.readAll()));
    const QString title = browser_->documentTitle();
    setWindowTitle(title.isEmpty() ? tr("Help") : title);
    return true;
}

} // namespace lineforge
