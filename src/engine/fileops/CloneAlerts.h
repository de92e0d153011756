#pragma once

#include "fileops/Alert.h"
#include "fileops/CloneWorker.h"

namespace selfsame
{

// The texts around replacing duplicates by clones, built from the planning pass's counts.
Alert compareFoldersCloneAlert();
Alert noClonableFileAlert();
Alert cloneConfirmationAlert(const CloneCounts &counts);
Alert writeProtectedCloneAlert(int count);
Alert otherOwnerCloneAlert(int count);
// The progress window's text and button title for a pass.
QString cloneProgressText(bool perform);
QString cloneProgressButtonTitle(bool perform);

} // namespace selfsame
