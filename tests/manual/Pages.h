#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace lineforge::manual
{

// An entry of a list of terms: what is described, and the description.
struct Term {
    QString Name;
    QString Description;
};

struct Picture {
    QString Source;
    QString Alternative; // for who can't see it
};

// A page of the manual, as far as tests look at it. All texts are simplified.
struct Page {
    QString Name;  // of its file
    QString Fault; // why it couldn't be read as a whole; empty when it could
    QString Title;
    QStringList Ids;
    QStringList Links;
    QList<Picture> Pictures;
    QHash<QString, QList<Term>> Terms;       // by the list's id, or else its class
    QHash<QString, QList<QStringList>> Rows; // of the tables that have an id, without those of headings

    QStringList Names(const QString& list) const;
};

// All of them; a test that reads a page which isn't there fails.
QList<Page> AllPages();
Page PageNamed(const QString& name);

// The directory that they stand in.
QString Directory();

} // namespace lineforge::manual
