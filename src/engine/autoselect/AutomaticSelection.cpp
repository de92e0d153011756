#include "autoselect/AutomaticSelection.h"

#include <QCoreApplication>

namespace selfsame
{

namespace
{

const char kChoice[] = "auto-select choice";
const char kOldest[] = "auto-select oldest";
const char kDate[] = "auto-select date";
const char kInside[] = "auto-select inside";
const char kInsideOldest[] = "auto-select inside oldest";
const char kInsideDate[] = "auto-select inside date";
const char kTagCondition[] = "auto-select tag condition";
const char kTagValue[] = "auto-select tag value";
const char kHide[] = "auto-select hide";
const char kFolder[] = "auto-select folder";

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

// The values a rule records each time it is applied.
QVariantMap ruleSettings(const AutoSelectSettings &s)
{
    switch (s.choice) {
    case SameFolderSameName:
    case LargestPicture:
    case BestRecording:
    case ContainedFolders:
        return {{key(kChoice), s.choice}};
    case SameFolderWhateverName:
        return {{key(kChoice), s.choice}, {key(kOldest), s.oldest}, {key(kDate), s.date}};
    case InsideFolder:
        return {{key(kChoice), s.choice},
                {key(kInside), s.inside},
                {key(kInsideOldest), s.insideOldest},
                {key(kInsideDate), s.insideDate}};
    case ByTag:
        return {{key(kChoice), s.choice}, {key(kTagCondition), s.tagCondition}, {key(kTagValue), s.tagValue}};
    default:
        return {};
    }
}

void applyRule(AutoSelection &selection, const AutoSelectSettings &s, const QList<ResultItem *> &from,
               qsizetype first, qsizetype last)
{
    switch (s.choice) {
    case SameFolderSameName:
        automaticallySelectSameFolderAndName(selection, from, first, last);
        break;
    case SameFolderWhateverName:
        automaticallySelectSameFolderWhateverTheName(selection, dateKeyForTag(s.date), s.oldest == 0, from,
                                                     first, last);
        break;
    case InsideFolder:
        automaticallySelectLocated(selection, s.inside, s.folder, s.insideOldest, dateKeyForTag(s.insideDate),
                                   from, first, last);
        break;
    case ByTag: {
        const bool exceptHaving = s.tagCondition == NotHavingTag || s.tagCondition == HavingNoTag;
        const bool anyTag = s.tagCondition == HavingAnyTag || s.tagCondition == HavingNoTag;
        automaticallySelectHavingTag(selection, exceptHaving, anyTag ? QString() : s.tagValue, from, first,
                                     last);
        break;
    }
    case LargestPicture:
        automaticallySelectKeepingLargestPicture(selection, from, first, last);
        break;
    case BestRecording:
        automaticallySelectKeepingBestRecording(selection, from, first, last);
        break;
    case ContainedFolders:
        automaticallySelectContainedFolders(selection, from, first, last);
        break;
    default:
        break;
    }
}

} // namespace

bool autoSelectRuleOffered(int rule, DetectionMode mode, bool containedFolders)
{
    switch (rule) {
    case SameFolderSameName:
    case SameFolderWhateverName:
    case InsideFolder:
    case ByTag:
        return true;
    case LargestPicture:
        return mode == DetectionMode::SimilarImages;
    case BestRecording:
        return mode == DetectionMode::SimilarAudio || mode == DetectionMode::Duration;
    case ContainedFolders:
        return mode == DetectionMode::Content && containedFolders;
    default:
        return false;
    }
}

int autoSelectInitialRule(std::optional<int> storedChoice, DetectionMode mode, bool containedFolders)
{
    if (storedChoice && autoSelectRuleOffered(*storedChoice, mode, containedFolders)) return *storedChoice;
    switch (mode) {
    case DetectionMode::SimilarImages:
        return LargestPicture;
    case DetectionMode::SimilarAudio:
        return BestRecording;
    default:
        return SameFolderSameName;
    }
}

QVariantMap autoSelectRegisteredDefaults()
{
    return {{key(kOldest), 0},
            {key(kDate), 1},
            {key(kInside), 0},
            {key(kInsideOldest), 0},
            {key(kInsideDate), 1},
            {key(kTagCondition), 0},
            {key(kTagValue), QCoreApplication::translate("Dupes", "Red")},
            {key(kHide), false}};
}

AutoSelectSettings autoSelectSettingsFrom(const QVariantMap &stored)
{
    QVariantMap values = autoSelectRegisteredDefaults();
    values.insert(stored);
    AutoSelectSettings s;
    s.choice = values.value(key(kChoice), 0).toInt();
    s.oldest = values.value(key(kOldest)).toInt();
    s.date = values.value(key(kDate)).toInt();
    s.inside = values.value(key(kInside)).toInt();
    s.insideOldest = values.value(key(kInsideOldest)).toInt();
    s.insideDate = values.value(key(kInsideDate)).toInt();
    s.tagCondition = values.value(key(kTagCondition)).toInt();
    s.tagValue = values.value(key(kTagValue)).toString();
    s.hide = values.value(key(kHide)).toBool();
    s.folder = values.value(key(kFolder)).toString();
    return s;
}

std::optional<Alert> autoSelectWarning(DetectionMode mode, const QVariantMap &doNotShowAgain)
{
    QString what;
    switch (mode) {
    case DetectionMode::Duration:
        what = QCoreApplication::translate("AutomaticSelection", "duration");
        break;
    case DetectionMode::FileName:
        what = QCoreApplication::translate("AutomaticSelection", "file name");
        break;
    case DetectionMode::Attribute:
        what = QCoreApplication::translate("AutomaticSelection", "attribute");
        break;
    default:
        return std::nullopt;
    }
    if (doNotShowAgain.value(QString::fromLatin1(kAutoSelectTimeBased)).toBool()) return std::nullopt;
    Alert alert{QCoreApplication::translate("AutomaticSelection",
                                            "Warning: You may end up selecting documents that are completely "
                                            "unrelated and that only have the same %1")
                    .arg(what),
                {},
                {QCoreApplication::translate("AutomaticSelection", "Continue"),
                 QCoreApplication::translate("AutomaticSelection", "Cancel")},
                0,
                1};
    alert.suppressible = true;
    return alert;
}

AutoSelectOutcome performAutomaticallySelect(ResultModel &model, const AutoSelectSettings &settings)
{
    if (model.hasHiddenArray() && model.hiddenBecauseOfAutomaticallySelect())
        model.automaticallySelectUnhide();

    AutoSelectOutcome outcome;
    const QList<ResultItem *> &sorted = model.mainItemsSorted();
    for (qsizetype first = 0; first < sorted.size();) {
        qsizetype last = first;
        while (last + 1 < sorted.size() && sorted[last + 1]->group == sorted[first]->group)
            ++last;
        applyRule(outcome.selection, settings, sorted, first, last);
        outcome.settingsToStore.insert(ruleSettings(settings));
        first = last + 1;
    }
    outcome.settingsToStore.insert(key(kHide), settings.hide);

    if (settings.hide) {
        QList<ResultItem *> visible, hidden;
        for (ResultItem *item : model.mainItems()) {
            const bool decided = outcome.selection.isSelected(item) || outcome.selection.isSkipped(item);
            (decided ? visible : hidden).append(item);
        }
        model.hide(visible, hidden, true);
    }
    model.sortDescriptorsDidChange(ResultList::Top);
    model.select(ResultList::Top, outcome.selection.selected());
    return outcome;
}

} // namespace selfsame
