#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace selfsame {

// File choosers for saved results and exports, modal to the parent's window. Each calls
// `chosen` with the path once the user has accepted.

// Saved results: *.selfsame, or the JSON that selfsame-cli writes.
void chooseResultsFileToOpen(QWidget *parent, std::function<void(const QString &path)> chosen);
// Where to save results; the path always ends in ".selfsame".
void chooseResultsFileToSave(QWidget *parent, const QString &suggestedName,
                             std::function<void(const QString &path)> chosen);
// Where to export a list as CSV; the path always ends in ".csv".
void chooseCsvFileToExport(QWidget *parent, const QString &suggestedName,
                           std::function<void(const QString &path)> chosen);

} // namespace selfsame
