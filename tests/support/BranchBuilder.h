#pragma once

#include "platform/drawing/Geometry.h"
#include "platform/files/FileSystem.h"
#include "support/TemporaryHome.h"

#include <QMap>
#include <QString>

#include <vector>

class QColor;

namespace lineforge
{

// A field of a record and its text.
struct FieldText {
    FieldText(QStringView field, QStringView text) : Field(field.toString()), Text(text.toString()) {}
    QString Field;
    QString Text;
};

// The fields of a record, in the order of the table.
const QStringList& RecordFields();

// Makes a tree branch in a home: database, map file and pictures.
//     BranchBuilder(home, u'A')
//         .Row({{u"File", u"A001"}, {u"Forename", u"John"}})
//         .Boxes(u"1200,600,255,A001,John,")
//         .Picture(u"A001", Qt::red)
//         .Build();
class BranchBuilder
{
public:
    BranchBuilder(TemporaryHome& home, QChar letter);

    // A record behind those added before; a field that isn't told is Null.
    BranchBuilder& Row(const std::vector<FieldText>& fields);

    // The three lists of the map file; untold they are those of an empty map.
    BranchBuilder& Boxes(QStringView list);
    BranchBuilder& Lines(QStringView list);
    BranchBuilder& Texts(QStringView list);

    // A small subject picture of one colour for the record of that number.
    BranchBuilder& Picture(QStringView file, const QColor& colour);

    // The gallery directory with these files, names and contents.
    BranchBuilder& Gallery(const QMap<QString, QByteArray>& files = {});

    // Another directory for it, as an imported branch has; the files in it keep their names.
    BranchBuilder& InDirectory(QStringView name);

    // Writes it all; gives back the absolute path of the directory, without a trailing separator.
    QString Build();

    // Relative to the home.
    QString DatabaseFile() const;
    QString MapFile() const;

private:
    QString In(const QString& name) const;

    TemporaryHome& home_;
    QString name_;
    QString directory_;
    QChar letter_;
    std::vector<std::vector<FieldText>> rows_;
    QString boxes_;
    QString lines_;
    QString texts_;
    QMap<QString, QByteArray> files_;
    bool hasGallery_ = false;
};

// The bytes of a map file.
QByteArray MapFileBytes(QStringView branch, QStringView boxes, QStringView lines, QStringView texts);

// The bytes of a JPEG picture of one colour.
QByteArray PictureBytes(const QColor& colour, Size pixels = {40, 30});

// A branch as the registry tells it.
struct Alias {
    Alias(QStringView name, QStringView directory) : Name(name.toString()), Directory(directory.toString()) {}
    QString Name;
    QString Directory;
};

// Writes AliasList.cfg.  `WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});`
void WriteAliasList(TemporaryHome& home, const std::vector<Alias>& branches, int noSplash = 1);

// Writes the templates that a new branch is copied from: an empty database and an empty map.
void WriteTemplates(TemporaryHome& home);

} // namespace lineforge
