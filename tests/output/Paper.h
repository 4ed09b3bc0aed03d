#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <vector>

namespace lineforge
{

// What stands on a print job's paper, found out by other programs than the one that put it there. Without these the
// test fails and tells which package they come with.

// A word and where it stands, in twips from the top left of its page.
struct PrintedWord {
    QString Text;
    int Page; // from 1 on
    QRectF Place;
};

int PagesOf(const QString& job);

// Width and height of the pages in whole points.
QSize PaperOf(const QString& job);

// All that is written, line by line from top to bottom, page after page; runs of blanks are one blank, empty lines and
// blanks at the ends are left out.
QStringList LinesOn(const QString& job);

std::vector<PrintedWord> WordsOn(const QString& job);

// The first place of a word; none is a failure of the test.
PrintedWord WordOn(const QString& job, QStringView text);

// The names of the fonts in it.
QStringList FontsOf(const QString& job);

// The first page, a pixel to five twips, as the pictures of the map have them.
QImage PictureOf(const QString& job);

// The numbers of the records whose reports are in it, in their order.
QStringList RecordsOn(const QString& job);

} // namespace lineforge
