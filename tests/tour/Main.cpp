#include "Compositor.h"
#include "Failure.h"
#include "Story.h"

#include <QCoreApplication>
#include <QTextStream>

#include <cstdlib>
#include <memory>
#include <utility>

// Drives the installed program on the screen, by mouse and keyboard, from its start to its end.
int main(int argc, char* argv[])
{
    using namespace lineforge::tour;
    using namespace Qt::StringLiterals;

    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    const bool isUnderCompositor = arguments.removeAll(u"--compositor"_s) > 0;
    QTextStream errors(stderr);
    if (arguments.size() != 3) {
        errors << u"Usage: lineforge_tour [--compositor] <installed-directory> <pictures-directory>"_s << Qt::endl;
        return 2;
    }
    try {
        const QDir pictures(arguments[2]);
        Expect(pictures.mkpath(u"."_s), u"to make the directory "_s + arguments[2]);
        std::unique_ptr<const Display> screen;
        if (isUnderCompositor)
            screen = std::make_unique<Compositor>();
        else
            screen = std::make_unique<Display>();
        Tour tour(std::move(screen), arguments[1], pictures);
        return Tell(tour, WholeStory(), pictures) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const Failure& failure) {
        errors << QString::fromUtf8(failure.what()) << Qt::endl;
        return EXIT_FAILURE;
    }
}
