#pragma once

#include "gallery/GalleryFile.h"
#include "program/state/ScanState.h"
#include "shell/ShellTest.h"

#include <QBuffer>
#include <QImage>

namespace lineforge
{

// A user of branch A, whose records A001 (John Smith) and A002 (Mary Jones) have galleries that each test fills; branch
// B beside it.
class GalleryTest : public ShellTest
{
protected:
    GalleryTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        WriteTemplates(Home);
        Home.WriteFile(u"GalAud.bmp", BitmapBytes(Qt::yellow));
        Home.WriteFile(u"GalVid.bmp", BitmapBytes(Qt::cyan));
        Home.WriteFile(u"GalTxt.bmp", BitmapBytes(Qt::magenta));
        Home.WriteFile(u"Notepad.exe", "an editor");
        BranchOf(u'B').Gallery({{u"B001_01.jpg"_s, PictureBytes(Qt::red)}}).Build();
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Jones"}})
            .Boxes(u"1200,600,255,A001,John,3000,600,255,A002,Mary,5000,600,255,B001,John,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::green)
            .Gallery()
            .Build();
        StartProgram(P);
    }

    // The files of the gallery of branch A. A picture is blue, and a file of another kind holds its own name.
    void GivenFiles(const QStringList& names)
    {
        for (const QString& name : names)
            Home.WriteFile(InGallery(name), ContentOf(name));
    }

    static QString InGallery(QStringView name) { return u"LfgDat_A/LfgGal_A/"_s + name; }
    QString GalleryPathOf(QStringView name) { return Home.Path(InGallery(name)); }

    static QByteArray ContentOf(const QString& name)
    {
        return KindOf(name) == GalleryKind::Picture ? PictureBytes(Qt::blue) : name.toUtf8();
    }

    static QByteArray BitmapBytes(const QColor& colour)
    {
        QImage image(32, 32, QImage::Format_RGB32);
        image.fill(colour);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QBuffer::WriteOnly);
        image.save(&buffer, "BMP");
        return bytes;
    }

    // As the user opens the gallery of A001 from the map.
    void OpenGallery()
    {
        Choose(u"Smiths");
        Click(P.Form1->Command2.Click);
    }
    void OpenGallery(const QStringList& names)
    {
        GivenFiles(names);
        OpenGallery();
    }

    Image& Tile(int index) { return P.Form5->Image1[index]; }
    void ClickTile(int index) { Drop(index, index); }
    void Drop(int source, int target)
    {
        Click([&] { Tile(target).DragDrop(Tile(source)); });
    }

    // What a tile shows: the colour of its picture, or nothing.
    static QString ShownOn(const Image& tile)
    {
        if (tile.Picture.value().isNull())
            return u"empty"_s;
        const QColor colour = tile.Picture.value().pixelColor(tile.Picture.value().rect().center());
        const std::pair<QColor, QStringView> known[] = {
            {Qt::blue, u"blue"},  {Qt::red, u"red"},      {Qt::yellow, u"sound"},
            {Qt::cyan, u"video"}, {Qt::magenta, u"text"},
        };
        for (const auto& [like, name] : known)
            if (std::abs(like.red() - colour.red()) + std::abs(like.green() - colour.green()) +
                    std::abs(like.blue() - colour.blue()) <
                30)
                return name.toString();
        return colour.name();
    }

    // The tiles that can be seen, each with its index, its tag without the way to it, and what it shows.
    QStringList Page()
    {
        QStringList page;
        for (int index = 0; index <= forms::Form5::LastTile; ++index)
            if (const Image& tile = Tile(index); tile.Visible)
                page << u"%1 %2 %3"_s.arg(QString::number(index), tile.Tag.value().section(PathSeparator, -1),
                                          ShownOn(tile));
        return page;
    }

    int Top() const { return P.Gallery.GalleryTop; }
    int State() const { return P.Scratch.ScanState; }
    QString Caption() { return P.Form5->Caption; }

    // What stands in the gallery of branch A: the names, sorted.
    QStringList FilesInGallery() const
    {
        QStringList names;
        for (const QString& path : Home.Snapshot().keys())
            if (path.startsWith(u"LfgDat_A/LfgGal_A/"))
                names << path.section(u'/', -1);
        return names;
    }
};

} // namespace lineforge
