#pragma once

#include <QtGlobal>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace selfsame {

// One listed file as the containment search sees it.
struct ContainmentFile {
    quint32 folder = 0;  // index into the input's folder paths
    qint32 content = -1; // equal content, equal number (its duplicate group); < 0: no copy anywhere
    qint64 size = 0;
    qint64 physicalSize = 0;
};

// What a folder holds at any depth, counting only listed files.
struct FolderSums {
    qint64 size = 0;
    qint64 physicalSize = 0;
    qint64 files = 0;
};

struct ContainmentInput {
    std::vector<std::string_view> folderPaths; // every listed folder; a path may repeat
    std::vector<ContainmentFile> files;        // empty files are left out: they hold nothing
    // Per folder index, when not empty: files directly inside that have no copy and are not
    // among `files` (alone in their size, never read).
    std::vector<FolderSums> filesWithoutCopy;
    std::vector<quint32> foldersNotWhole;      // indices of folders holding items not listed
    // Trees that other groups account for already (equal folders), each path with "/"
    // appended: nothing in them is reported as contained, though they may contain others.
    std::vector<std::string> accountedFor;
};

struct Containment {
    std::string contained;
    FolderSums containedSums;
    std::string container;
    FolderSums containerSums;
};

// The folders whose files, by content, all have copies inside one other folder that neither
// encloses them nor lies inside them, each with the smallest such container; in path order.
//
// Larger folders are taken first, and what lies inside a reported folder goes with it. No
// container is reported, nor lies inside or around a reported folder: removing every
// reported folder leaves each container whole, with a copy of each of their files. So of
// A ⊂ B ⊂ C, A and B are reported, both in C; of two folders of equal content, one (the
// larger, the first in path order among equals) in the other.
//
// Candidates come from the rarest content of a folder (the one in the fewest files): only
// the folders around its other copies can contain it. A folder with a file of no copy, or
// with anything not listed, is never contained. `progress` gets 0 to 1.
std::vector<Containment> findContainedFolders(const ContainmentInput &input,
                                                  const std::function<void(double)> &progress = {});

} // namespace selfsame
