#pragma once

#include <QString>

#include <vector>

namespace lineforge::check
{

// What a finding is about. Notes tell of what is legal, or none of the check's business, and yet worth knowing.
enum class Kind {
    Unread,       // couldn't be looked at, so that the check isn't whole
    Registry,     // the list of branches, and what it leads to
    Database,     // a branch's database as a whole
    RecordNumber, // double, or not a letter and three digits
    Link,         // to a father, mother or spouse who isn't there
    MapFile,      // a map file as a whole
    MapItem,      // a box, line or text that the map can't show, or would lose
    Box,          // of a record that isn't there
    SubjectPicture,
    GalleryFile,
    Leftover, // of work that was cut off

    OldDatabase, // a note, as are those that follow: of an older installation, whose records weren't looked at
    WithoutBox,
    WithoutPicture,
    WithoutGallery,
    StrangeFile,
};

struct Finding {
    check::Kind Kind{};
    QString File;   // relative to the home; empty for the home itself
    QString Record; // its number; empty where it is about none
    QString Text;   // what is wrong, in one line
    friend bool operator==(const Finding&, const Finding&) = default;
};

// What has been looked at.
struct Tally {
    int Branches = 0;
    int Records = 0;
    int Boxes = 0;
    int Pictures = 0; // of people
    int GalleryFiles = 0;
};

struct Report {
    std::vector<Finding> Findings; // notes among them, file by file
    Tally Seen;
};

// What the whole comes to; the numbers are those that the program ends with.
enum class Verdict { NothingFound = 0, Findings = 1, NotWhole = 2 };

bool IsNote(Kind kind);
Verdict VerdictOf(const Report& report);

} // namespace lineforge::check
