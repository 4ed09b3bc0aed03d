#include "BenchHome.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <sqlite3.h>

namespace lineforge::bench
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int branches = 11;
constexpr int people = 999;

void Execute(sqlite3* database, const QByteArray& sql)
{
    if (sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("%s", sqlite3_errmsg(database));
}

QString Number(QChar letter, int number)
{
    return letter + u"%1"_s.arg(number, 3, 10, QLatin1Char('0'));
}

void WriteFile(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly))
        qFatal("can't write a file of the benchmark");
    file.write(text.toUtf8());
}

QString BoxList()
{
    QString boxes;
    for (int box = 0; box < 100; ++box) {
        const bool isForeign = box >= 60;
        const QChar letter(isForeign ? u'B' + (box - 60) % 10 : u'A');
        boxes += u"%1,%2,16711680,%3,Name,"_s.arg(100 + box % 10 * 700)
                     .arg(100 + box / 10 * 400)
                     .arg(Number(letter, 1 + box * 9 % people));
    }
    return boxes;
}

QString MapFile(const QString& boxes)
{
    QString lines;
    for (int line = 0; line < 100; ++line)
        lines += u"%1,%2,%3,%2,255,"_s.arg(100 + line * 10).arg(150 + line * 40).arg(700 + line * 10);
    return u"This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n[LfgDat_A]\r\n"
           u"[Boxes]\r\n%1\r\n[Lines]\r\n%2\r\n[Text]\r\n300,40,The family,Arial,14,128,\r\n"_s.arg(boxes, lines);
}
} // namespace

void MakeDatabase(const QString& path, QChar letter, int rows)
{
    sqlite3* database = nullptr;
    sqlite3_open(path.toUtf8().constData(), &database);
    Execute(database, "CREATE TABLE Tree99 (File TEXT, Surname TEXT, Forename TEXT, BirthDate TEXT, BirthPlace TEXT, "
                      "Gender TEXT, Nationality TEXT, Spouse TEXT, SpouseRec TEXT, FatherRec TEXT, MotherRec TEXT, "
                      "Children TEXT, PrevChildren TEXT, Partner TEXT, Maiden TEXT, Wedding TEXT, WedDate TEXT, "
                      "Education TEXT, Profession TEXT, Deceased TEXT, Notes TEXT, Medical TEXT, "
                      "BirthCertificate TEXT, MarriageCertificate TEXT, DeathCertificate TEXT); BEGIN");
    for (int row = 1; row <= rows; ++row) {
        QByteArray values = "'" + Number(letter, row).toUtf8() + "'";
        for (int field = 1; field < 25; ++field)
            values += ",'A text of some length " + QByteArray::number(row * 31 + field) + "'";
        Execute(database, "INSERT INTO Tree99 VALUES (" + values + ")");
    }
    Execute(database, "COMMIT");
    sqlite3_close(database);
}

BenchHome::BenchHome()
{
    QString aliases;
    for (int branch = 0; branch < branches; ++branch) {
        const QChar letter(u'A' + branch);
        const QString name = u"LfgDat_"_s + letter;
        QDir(directory_.path()).mkdir(name);
        MakeDatabase(Database(letter), letter, people);
        WriteFile(Path() + name + u'/' + name + u".cfg", MapFile(branch == 0 ? BoxList() : u"0,0,0,"_s));
        aliases += u"Family %1=%2,"_s.arg(letter).arg(name);
    }
    QImage portrait(330, 290, QImage::Format_RGB32);
    portrait.fill(Qt::lightGray);
    portrait.save(Path() + u"LfgDat_A/A001Sub.jpg", "jpg");
    WriteFile(Path() + u"AliasList.cfg", u"[Alias]\r\n[%1]\r\n[CFG]\r\n[1,]\r\n"_s.arg(aliases));
}

QString BenchHome::Database(QChar letter) const
{
    return Path() + u"LfgDat_" + letter + u"/LfgDat_" + letter + u".mdb";
}

} // namespace lineforge::bench
