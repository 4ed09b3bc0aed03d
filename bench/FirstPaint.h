#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

namespace lineforge::bench
{

// Ends the program when the first paint event of a top-level window has been served.
inline void EndAtFirstPaint()
{
    class Watch : public QObject
    {
    public:
        using QObject::QObject;
        bool eventFilter(QObject* receiver, QEvent* event) override
        {
            if (event->type() == QEvent::Paint && qobject_cast<QWidget*>(receiver))
                QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
            return false;
        }
    };
    qApp->installEventFilter(new Watch(qApp));
}

} // namespace lineforge::bench
