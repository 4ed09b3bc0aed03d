#include "FuzzHome.h"
#include "forms/Form3.h"
#include "forms/Form5.h"
#include "gallery/AddFile.h"
#include "gallery/DeleteFile.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryItem.h"
#include "gallery/GalleryPage.h"
#include "gallery/Rearrange.h"
#include "gallery/TileClick.h"
#include "records/RecordPicture.h"

#include <QFile>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <utility>

namespace lineforge::fuzz
{
namespace
{

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

constexpr qsizetype mostNames = 8;
constexpr qsizetype longestName = 64;

class Gallery
{
public:
    Gallery()
    {
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        for (const QString& name : {u"picture.bmp"_s, u"GalAud.bmp"_s, u"GalVid.bmp"_s, u"GalTxt.bmp"_s})
            Require(picture.save(home_.Path(name), "BMP"));
        home_.User.Picked = home_.Path(u"picture.bmp"_s);
        p_.Form5.Load();
    }

    // The first line is the number of the record that is shown, the others are names in its branch's gallery.
    void Run(const QByteArray& input)
    {
        const QList<QByteArray> lines = input.split('\n');
        p_.Form3->Label25.Caption = QString::fromUtf8(lines.first().left(longestName));
        Fill(lines.sliced(1));
        Use();
    }

private:
    // Every file is the same one, so that its picture is decoded once.
    void Fill(const QList<QByteArray>& names) const
    {
        std::error_code error;
        for (const fs::directory_entry& file : fs::directory_iterator(directory_))
            fs::remove(file, error);
        for (const QByteArray& name : names.first(std::min(names.size(), mostNames)))
            if (!name.isEmpty() && !name.contains('/') && !name.contains('\0'))
                fs::create_hard_link(picture_, directory_ / name.left(longestName).toStdString(), error);
    }

    using Names = std::set<std::string>;
    Names Files() const
    {
        Names names;
        for (const fs::directory_entry& file : fs::directory_iterator(directory_))
            names.insert(file.path().filename());
        return names;
    }

    struct Change {
        Names Gone;
        Names New;
    };

    // Which names a command that may be refused takes away and brings.
    template <class Command>
    Change ChangeBy(Command&& command)
    {
        const Names before = Files();
        try {
            command();
        } catch (const RuntimeError&) {
        }
        const Names after = Files();
        Change change;
        std::ranges::set_difference(before, after, std::inserter(change.Gone, change.Gone.end()));
        std::ranges::set_difference(after, before, std::inserter(change.New, change.New.end()));
        return change;
    }

    template <class Command>
    void RequireSame(Command&& command)
    {
        const Change change = ChangeBy(std::forward<Command>(command));
        Require(change.Gone.empty() && change.New.empty());
    }

    // Two files at most get other names.
    void Rearrange(int from, int to)
    {
        const Change change = ChangeBy([&] { RearrangeTiles(p_, Tile(from), Tile(to)); });
        Require(change.Gone.size() == change.New.size() && change.Gone.size() <= 2);
    }

    Image& Tile(int index) { return p_.Form5->Image1[index]; }

    void Use()
    {
        p_.Scratch.ScanState = GalleryScan::Browsing;
        RequireSame([&] { ShowRecordPicture(p_); });
        RequireSame([&] { BuildGalleryPage(p_); });
        RequireSame([&] { DropOnTile(p_, p_.Form1, 0, Tile(0)); });
        CloseGalleryItem(p_);
        Rearrange(0, 1);
        Rearrange(2, 0);
        // Under a name that is taken already a file is replaced.
        const Change addition = ChangeBy([&] { AddGalleryFile(p_, GalleryKind::Text); });
        Require(addition.Gone.empty() && addition.New.size() <= 1);
        Require(ChangeBy([&] { DeleteFileOfTile(p_, 0); }).New.empty());
        RequireSame([&] { BuildGalleryPage(p_); });
    }

    FuzzHome home_;
    Program& p_ = home_.P;
    const fs::path directory_ = QFile::encodeName(home_.Path(u"LfgDat_A/LfgGal_A"_s)).toStdString();
    const fs::path picture_ = QFile::encodeName(home_.Path(u"picture.bmp"_s)).toStdString();
};

} // namespace
} // namespace lineforge::fuzz

// Whatever the names in a gallery: its page is shown or refused, and no command loses a file that it isn't told to.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge::fuzz;

    static Gallery gallery;
    gallery.Run(BytesOf(data, size));
    return 0;
}
