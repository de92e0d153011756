#pragma once

#include <QString>

namespace selfsame
{

enum ReplaceWithMode : int {
    ReplaceWithNone = 0,
    ReplaceWithAlias = 1, // a desktop entry of Type=Link pointing at the reference
    ReplaceWithSymbolicLink = 2,
    ReplaceWithRelativeSymbolicLink = 3,
    ReplaceWithHardLink = 4,
    ReplaceWithClone = 5,
};

// The two modes of the delete commands: the plain one and the alternate one, used while a
// modifier is held. Choosing for one slot the mode that the other holds swaps them.
struct ReplaceWithModes {
    int replaceWith = ReplaceWithNone; // "replace with"
    int alternate = ReplaceWithNone;   // "alternate replace with"
    void choose(int mode, bool forAlternate);
    int inForce(bool alternateMode) const { return alternateMode ? alternate : replaceWith; }
};

// The status image name of an item after a move to the trash (trashed true) or an immediate
// deletion, followed by a replacement in `mode`: "trashed", "deleted", "aliased",
// "hard linked" or "cloned".
QString statusImageName(bool trashed, int mode);

// The menu suffix of a delete command for a mode ("" or " and Do Not Replace" for 0 on the
// main or alternate item). False for values above 5: the title is then left as it is.
bool replaceWithMenuSuffix(int mode, bool alternate, QString *suffix);

// `target` relative to `folder`: /Users/a/Pictures/x.jpg from /Users/a/Backup/old is
// ../../Pictures/x.jpg.
QString relativePathFromFolder(const QString &targetPath, const QString &folderPath);

// Makes the replacement of `mode` at `path`, which must not exist, for `reference`.
// Returns 0 or an errno value; nothing is left at `path` on failure.
int makeReplacement(int mode, const QString &reference, const QString &path, bool referenceIsFolder);

// Writes a freedesktop desktop entry of Type=Link whose URL= is the file URL of `target`.
int writeDesktopLink(const QString &target, const QString &path);

} // namespace selfsame
