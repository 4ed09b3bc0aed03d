#pragma once

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QFile>
#include <QTimer>

#include <cstdio>

namespace lineforge::bench
{

// What a program holds and does while nobody works with it: a second after this call, and over two more. Tells
// resident kilobytes and how often it was woken, and ends the program.
inline void TellOfIdleness()
{
    constexpr int rest = 1000; // milliseconds
    constexpr int watch = 2000;
    QTimer::singleShot(rest, qApp, [] {
        static int wakings = 0;
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, qApp,
                         [] { ++wakings; });
        QTimer::singleShot(watch, qApp, [] {
            QFile status(QStringLiteral("/proc/self/status"));
            if (!status.open(QFile::ReadOnly))
                QCoreApplication::exit(1);
            for (const QByteArray& line : status.readAll().split('\n'))
                if (line.startsWith("VmRSS:"))
                    std::printf("%d %d\n", line.simplified().split(' ').at(1).toInt(), wakings);
            QCoreApplication::exit(0);
        });
    });
}

} // namespace lineforge::bench
