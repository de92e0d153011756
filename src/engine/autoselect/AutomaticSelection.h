#pragma once

#include "autoselect/AutoSelectRules.h"
#include "fileops/Alert.h"
#include "results/ResultModel.h"

#include <QVariantMap>
#include <optional>

namespace selfsame
{

// The rules by the tags of their choices, as stored under "auto-select choice".
enum AutoSelectRule : int {
    SameFolderSameName = 0,
    SameFolderWhateverName = 1,
    InsideFolder = 2,
    ByTag = 3,
    LargestPicture = 4, // keep the picture of the most pixels, then the largest file
    BestRecording = 5,  // keep the highest bit rate, then a lossless format
    ContainedFolders = 6, // select each contained folder, keep its container
};

// Whether the sheet offers the rule after a search in that mode: the picture rule after
// similar pictures, the recording rule after same recordings and durations, the contained
// folders rule after a search for them; the others always.
bool autoSelectRuleOffered(int rule, DetectionMode mode, bool containedFolders = false);
// The rule the sheet starts with: the stored one where it is offered, else the mode's own.
int autoSelectInitialRule(std::optional<int> storedChoice, DetectionMode mode, bool containedFolders = false);

// The choices of the automatic selection, as the settings keep them.
struct AutoSelectSettings {
    int choice = SameFolderSameName; // "auto-select choice"
    int oldest = 0;                  // "auto-select oldest": 0 keeps the oldest, other the newest
    int date = 1;                    // "auto-select date": date tag of the whatever-the-name rule
    int inside = DirectlyInside;     // "auto-select inside"
    int insideOldest = AnyDate;      // "auto-select inside oldest"
    int insideDate = 1;              // "auto-select inside date"
    int tagCondition = HavingTag;    // "auto-select tag condition"
    QString tagValue;                // "auto-select tag value"
    bool hide = false;               // "auto-select hide": hide what is neither selected nor kept
    QString folder;                  // "auto-select folder"
};

// The defaults registered for those settings ("auto-select choice" and the folder have none).
QVariantMap autoSelectRegisteredDefaults();
// The settings read from stored values, registered defaults filling the gaps.
AutoSelectSettings autoSelectSettingsFrom(const QVariantMap &stored);

// The entry of the "do not show again" dictionary that silences the warning below.
inline constexpr char kAutoSelectTimeBased[] = "auto select time-based";

// Outside the content mode copies may share only a duration, a name or an attribute: the
// warning before the sheet opens, unless silenced. Its answer 1000 continues.
std::optional<Alert> autoSelectWarning(DetectionMode mode, const QVariantMap &doNotShowAgain);

struct AutoSelectOutcome {
    AutoSelection selection;
    QVariantMap settingsToStore; // the values the applied rule records
};

// Applies the chosen rule to every group of the visible items: first shows again what an
// earlier run hid, then optionally hides what the rule neither selected nor kept, re-sorts
// the top list and selects exactly the selected items there.
AutoSelectOutcome performAutomaticallySelect(ResultModel &model, const AutoSelectSettings &settings);

} // namespace selfsame
