#include "Story.h"

#include "Failure.h"
#include "stops/Stops.h"

#include <QFile>
#include <QTextStream>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
QString PictureName(std::size_t number, const QString& name)
{
    return u"%1-%2.png"_s.arg(number, 2, 10, QChar(u'0')).arg(name);
}

void Keep(const QImage& picture, const QDir& pictures, const QString& name)
{
    Expect(picture.save(pictures.filePath(name)), u"to write "_s + pictures.filePath(name));
}

// Those of an earlier tour could be taken for this one's.
void RemovePictures(const QDir& pictures)
{
    for (const QString& name : pictures.entryList({u"[0-9]*-*.png"_s, u"page-*.png"_s}, QDir::Files))
        Expect(QFile::remove(pictures.filePath(name)), u"to remove "_s + name);
}

QString WindowsOnScreen(const Display& screen)
{
    QString titles;
    for (const ScreenWindow& window : screen.Windows())
        titles += u"\n  \"%1\" %2x%3 at %4,%5"_s.arg(window.Title)
                      .arg(window.Place.width())
                      .arg(window.Place.height())
                      .arg(window.Place.x())
                      .arg(window.Place.y());
    return titles;
}

void Report(Tour& tour, const QString& step, const char* failure)
{
    QTextStream out(stderr);
    out << u"FAILED  "_s << step << Qt::endl << QString::fromUtf8(failure) << Qt::endl;
    out << u"On the screen:"_s << WindowsOnScreen(tour.Screen) << Qt::endl;
    out << u"The program: "_s << tour.Program.Ending() << u". Its own words:\n"_s << tour.Program.Output() << Qt::endl;
}
} // namespace

Steps WholeStory()
{
    Steps story;
    for (const auto& stop :
         {SplashStop,        EmptyWindowStop,  OpenStop,    GalleryStop,     ScrollStop,      CoordinatesStop,
          SubjectsStop,      RecordsStop,      ScannerStop, SearchStop,      AddRecordStop,   OutputStop,
          GedcomStop,        CompareStop,      LineageStop, NewBranchStop,   DrawTreeStop,    MapSubjectsStop,
          DuplicateNameStop, OpenOtherStop,    HelpStop,    CloseBranchStop, InterchangeStop, ChangeDirectoryStop,
          ExitStop,          WithoutSplashStop})
        for (Step& step : stop())
            story.push_back(std::move(step));
    return story;
}

bool Tell(Tour& tour, const Steps& steps, const QDir& pictures)
{
    QTextStream out(stdout);
    RemovePictures(pictures);
    for (std::size_t number = 1; const Step& step : steps) {
        try {
            step.Act(tour);
            Keep(tour.SettledPicture(), pictures, PictureName(number, step.Name));
        } catch (const Failure& failure) {
            Report(tour, step.Name, failure.what());
            Keep(tour.Screen.Picture(), pictures, PictureName(number, step.Name + u"-FAILED"));
            return false;
        }
        out << u"ok  "_s << PictureName(number++, step.Name) << Qt::endl;
    }
    return true;
}

} // namespace lineforge::tour
