#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/drawing/PictureFile.h"
#include "platform/drawing/Thumbnails.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "platform/store/Database.h"
#include "program/state/BranchState.h"
#include "program/state/CompareState.h"
#include "program/state/GalleryState.h"
#include "program/state/GedcomState.h"
#include "program/state/LineageState.h"
#include "program/state/MapMouseState.h"
#include "program/state/MapState.h"
#include "program/state/OutputState.h"
#include "program/state/RecordState.h"
#include "program/state/ScanState.h"
#include "program/state/ScratchState.h"
#include "program/state/ToolState.h"
#include "program/state/Windows.h"

#include <QSet>
#include <QString>

namespace lineforge
{

// One run of the program: the machine it runs on, all its state, and its windows.
struct Program {
    explicit Program(const Platform& platform);
    ~Program();

    lineforge::Prompts& Prompts;
    EventLoop& Loop;
    lineforge::Screen& Screen;
    lineforge::Clipboard& Clipboard;
    lineforge::Processes& Processes;
    lineforge::Printer Printer;
    QString ExecutableDirectory;
    QString FirstHome; // in which the run begins, with a trailing separator
    FileSystem Files;
    lineforge::Databases Databases;
    // Databases of older installations that could not be taken in this run, so that a map which shows their people
    // doesn't ask at each drawing.
    QSet<FileIdentity> RefusedDatabases;
    PictureCache Pictures;
    lineforge::Thumbnails Thumbnails;
    ErrorState Errors;

    BranchState Branch;
    AliasState Alias;
    ToolState Tools;
    MapState Map;
    MapMouseState Mouse;
    MappingState Mapping;
    RecordState Record;
    GalleryState Gallery;
    CompareState Compare;
    ExportState Export;
    BookmarkState Bookmarks;
    OutputState Output;
    LineageState Lineage;
    GedcomState Gedcom;
    ScratchState Scratch;

    Window<forms::form9> form9;
    Window<forms::Form1> Form1;
    Window<forms::Form2> Form2;
    Window<forms::Form3> Form3;
    Window<forms::Form4> Form4;
    Window<forms::Form5> Form5;
    Window<forms::Form6> Form6;
    Window<forms::Form7> Form7;
    Window<forms::Form8> Form8;
    Window<forms::Form11> Form11;
    Window<forms::Form12> Form12;
};

} // namespace lineforge
