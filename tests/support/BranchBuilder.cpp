#include "support/BranchBuilder.h"

#include "support/SqliteFile.h"

#include <QBuffer>
#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString warningLine = u"This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY."_s;
const QString emptyList = u"0,0,0,"_s;

QByteArray Lines(const QStringList& lines)
{
    return (lines.join(u"\r\n"_s) + u"\r\n"_s).toUtf8();
}

void MakeDatabase(const QString& path, const std::vector<std::vector<FieldText>>& rows)
{
    SqliteFile database(path);
    database.Execute("CREATE TABLE Tree99 (" + RecordFields().join(u" TEXT, "_s).toUtf8() + " TEXT)");
    database.Execute("BEGIN");
    for (const std::vector<FieldText>& row : rows) {
        QStringList fields;
        QStringList places;
        SqliteFile::Row texts;
        for (const FieldText& field : row) {
            fields.push_back(field.Field);
            places.push_back(u"?"_s);
            texts.push_back(field.Text);
        }
        if (row.empty())
            database.Execute("INSERT INTO Tree99 DEFAULT VALUES");
        else
            database.Query("INSERT INTO Tree99 (" + fields.join(u',').toUtf8() + ") VALUES (" +
                               places.join(u',').toUtf8() + ")",
                           texts);
    }
    database.Execute("COMMIT");
}
} // namespace

const QStringList& RecordFields()
{
    static const QStringList fields{u"File"_s,
                                    u"Surname"_s,
                                    u"Forename"_s,
                                    u"BirthDate"_s,
                                    u"BirthPlace"_s,
                                    u"Gender"_s,
                                    u"Nationality"_s,
                                    u"Spouse"_s,
                                    u"SpouseRec"_s,
                                    u"FatherRec"_s,
                                    u"MotherRec"_s,
                                    u"Children"_s,
                                    u"PrevChildren"_s,
                                    u"Partner"_s,
                                    u"Maiden"_s,
                                    u"Wedding"_s,
                                    u"WedDate"_s,
                                    u"Education"_s,
                                    u"Profession"_s,
                                    u"Deceased"_s,
                                    u"Notes"_s,
                                    u"Medical"_s,
                                    u"BirthCertificate"_s,
                                    u"MarriageCertificate"_s,
                                    u"DeathCertificate"_s};
    return fields;
}

QByteArray MapFileBytes(QStringView branch, QStringView boxes, QStringView lines, QStringView texts)
{
    return Lines({warningLine, u"[%1]"_s.arg(branch), u"[Boxes]"_s, boxes.toString(), u"[Lines]"_s, lines.toString(),
                  u"[Text]"_s, texts.toString()});
}

QByteArray PictureBytes(const QColor& colour, Size pixels)
{
    QImage image(pixels.Width, pixels.Height, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer bytes;
    if (!image.save(&bytes, "JPG"))
        ADD_FAILURE() << "can't write JPEG pictures";
    return bytes.data();
}

BranchBuilder::BranchBuilder(TemporaryHome& home, QChar letter)
    : home_(home), name_(u"LfgDat_"_s + letter), directory_(name_), letter_(letter), boxes_(emptyList),
      lines_(emptyList), texts_(emptyList)
{
}

BranchBuilder& BranchBuilder::Row(const std::vector<FieldText>& fields)
{
    rows_.push_back(fields);
    return *this;
}

BranchBuilder& BranchBuilder::Boxes(QStringView list)
{
    boxes_ = list.toString();
    return *this;
}

BranchBuilder& BranchBuilder::Lines(QStringView list)
{
    lines_ = list.toString();
    return *this;
}

BranchBuilder& BranchBuilder::Texts(QStringView list)
{
    texts_ = list.toString();
    return *this;
}

BranchBuilder& BranchBuilder::Picture(QStringView file, const QColor& colour)
{
    files_.insert(file.toString() + u"Sub.jpg"_s, PictureBytes(colour));
    return *this;
}

BranchBuilder& BranchBuilder::Gallery(const QMap<QString, QByteArray>& files)
{
    hasGallery_ = true;
    for (auto file = files.begin(); file != files.end(); ++file)
        files_.insert(u"LfgGal_"_s + letter_ + PathSeparator + file.key(), file.value());
    return *this;
}

BranchBuilder& BranchBuilder::InDirectory(QStringView name)
{
    directory_ = name.toString();
    return *this;
}

QString BranchBuilder::In(const QString& name) const
{
    return directory_ + PathSeparator + name;
}

QString BranchBuilder::DatabaseFile() const
{
    return In(name_ + u".mdb"_s);
}

QString BranchBuilder::MapFile() const
{
    return In(name_ + u".cfg"_s);
}

QString BranchBuilder::Build()
{
    const QString directory = home_.MakeDirectory(directory_);
    MakeDatabase(home_.Path(DatabaseFile()), rows_);
    home_.WriteFile(MapFile(), MapFileBytes(name_, boxes_, lines_, texts_));
    if (hasGallery_)
        home_.MakeDirectory(In(u"LfgGal_"_s + letter_));
    for (auto file = files_.begin(); file != files_.end(); ++file)
        home_.WriteFile(In(file.key()), file.value());
    return directory;
}

void WriteAliasList(TemporaryHome& home, const std::vector<Alias>& branches, int noSplash)
{
    QString list;
    for (const Alias& branch : branches)
        list += branch.Name + u'=' + branch.Directory + u',';
    home.WriteFile(u"AliasList.cfg",
                   Lines({warningLine, u"[Alias]"_s, u'[' + list + u']', u"[CFG]"_s, u"[%1,]"_s.arg(noSplash)}));
}

void WriteTemplates(TemporaryHome& home)
{
    MakeDatabase(home.Path(u"LfgEmpt.~Md"), {});
    home.WriteFile(u"LfgEmpt.~cf", MapFileBytes(u"LfgDat_A", emptyList, emptyList, emptyList));
}

} // namespace lineforge
