#include "Artwork.h"
#include "Database.h"
#include "Failure.h"
#include "HomeBuilder.h"
#include "VectorIcon.h"

#include <QGuiApplication>
#include <QStringList>

#include <cstdio>

namespace
{

using namespace Qt::StringLiterals;
namespace makehome = lineforge::makehome;

int Usage()
{
    std::fputs("usage: makehome template <schema.sql> <out.mdb>\n"
               "       makehome artwork <data-dir> <outdir>\n"
               "       makehome icons <icon.svg> <theme-dir>\n"
               "       makehome home <examples-dir> <schema.sql> <outdir>\n",
               stderr);
    return 1;
}

int Run(const QStringList& arguments)
{
    const QString command = arguments.value(0);
    if (command == "template"_L1 && arguments.size() == 3) {
        makehome::CreateDatabase(arguments[1], arguments[2]);
        return 0;
    }
    if (command == "artwork"_L1 && arguments.size() == 3) {
        makehome::MakeArtwork(arguments[1], arguments[2]);
        return 0;
    }
    if (command == "icons"_L1 && arguments.size() == 3) {
        makehome::MakeThemeIcons(arguments[1], arguments[2]);
        return 0;
    }
    if (command == "home"_L1 && arguments.size() == 4) {
        makehome::BuildHome(arguments[1], arguments[2], arguments[3]);
        return 0;
    }
    return Usage();
}

} // namespace

int main(int argc, char* argv[])
{
    // Text on pictures needs the font machinery of a running application, but a build has no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    try {
        return Run(QGuiApplication::arguments().mid(1));
    } catch (const makehome::Failure& failure) {
        std::fprintf(stderr, "makehome: %s\n", failure.what());
        return 1;
    }
}
