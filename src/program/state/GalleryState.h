#pragma once

#include "platform/base/Number.h"

#include <QImage>
#include <QString>

#include <optional>

namespace lineforge
{

struct GalleryState {
    Integer16 FirstShow; // 1: the page must be built before it is shown
    bool WantsPage() const { return FirstShow == 1; }
    Integer16 GalleryTop; // the highest subscript of the page, and so the index of the empty tile behind it
    Integer16 GallerySel; // the tile last clicked
    // Where the tile of an enlarged picture stood; twips.
    Integer16 GalSaveTop;
    Integer16 GalSaveHeight;
    Integer16 GalSaveWidth;
    QString GalSaveLeft;
    QImage TilePicture;              // what the tile of an enlarged picture showed
    std::optional<int> EnlargedTile; // none: no picture is open
    qint64 EditorTask = 0;
    int Page = 0; // grows with every page that is begun, and when a page has gone with its window
    // Whose files are on the page, and where they are, with a trailing separator. Cursor and branch may have gone on
    // since: what is opened, added or deleted goes by what the user sees.
    QString PageRecord;
    QString PageDirectory;
    QString PageForename; // of that record, and its surname, as the record form last showed them
    QString PageSurname;
};

} // namespace lineforge
