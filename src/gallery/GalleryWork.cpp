#include "gallery/GalleryWork.h"

#include "program/state/Program.h"

namespace lineforge
{

TilePictures::TilePictures(Program& p) : Files(p.Files), Screen(p.Screen), Thumbnails(p.Thumbnails), Loop(p.Loop) {}

GalleryWork::GalleryWork(Program& p)
    : TilePictures(p), State(p.Gallery), Scratch(p.Scratch), Branch(p.Branch), Prompts(p.Prompts),
      Processes(p.Processes), Errors(p.Errors), Form3(p.Form3), Form5(p.Form5)
{
}

} // namespace lineforge
