#include "qt/WindowTest.h"

#include "platform/base/RuntimeError.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

namespace lineforge
{

WindowTest::WindowTest() : platform_(MainWindowSize, [] { return QDir::tempPath(); })
{
    System().RunHandler = [this](const Event& handler) {
        try {
            handler();
        } catch (const RuntimeError& error) {
            refusals_.push_back(error.Number);
        }
    };
}

WindowTest::~WindowTest()
{
    System().CloseAll();
}

QWidget& WindowTest::ViewOf(const Form& form)
{
    QWidget* window = System().WidgetOf(form);
    if (!window)
        throw std::runtime_error("the window has not been shown");
    return *window;
}

void WindowTest::Activate(const Form& form)
{
    ViewOf(form).activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&ViewOf(form)));
}

void ServeEvents()
{
    QCoreApplication::processEvents();
}

void PassEventLoop()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace lineforge
