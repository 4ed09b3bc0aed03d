#include "program/branch/FormerGalleries.h"

#include "platform/base/RuntimeError.h"
#include "program/branch/BranchPaths.h"

namespace lineforge
{

FormerGalleries::FormerGalleries(const FileSystem& files, const QString& workDir)
{
    const QString gallery = workDir + PathSeparator + GalleryName(BranchLetter(workDir)) + PathSeparator;
    try {
        for (const QString& name : files.Files(gallery + u'*'))
            if (const qsizetype end = name.indexOf(u'_'); end > 0)
                records_ += name.first(end).toLower();
    } catch (const RuntimeError&) {
        // Without a gallery there is nobody in it.
    }
}

} // namespace lineforge
