#pragma once

#include "autoselect/AutomaticSelection.h"

#include <QList>
#include <QPair>
#include <QString>

namespace selfsame::cli
{

// "--select RULE": the rule's name and, for "folder" and "tag", the folder or tag after it.
struct SelectRequest {
    QString rule;
    QString operand;
    QList<QPair<QString, QString>> options; // the rule options given, with their values
};

// The rules that need a folder or may take a tag name right after their name.
bool selectRuleTakesFolder(const QString &rule);
bool selectRuleMayTakeTag(const QString &rule);
// Options of the rules, and which of them take a value.
bool isSelectOption(const QString &option);
bool selectOptionTakesValue(const QString &option);

// The settings of the rule, or the error text when the rule or an option does not fit.
QString selectSettings(const SelectRequest &request, AutoSelectSettings *settings);

QString selectUsageText();

} // namespace selfsame::cli
