#pragma once

#include <QString>
#include <QStringList>

namespace selfsame
{

// What a window needs to show one alert. Answer codes are 1000 + the button's index.
struct Alert {
    QString message;
    QString informative;
    QStringList buttons;
    int defaultButton = 0;
    int cancelButton = -1;      // the button that Escape presses, -1 for none
    int destructiveButton = -1; // drawn as destructive, -1 for none
    bool suppressible = false;  // shows a "do not show again" check box
};

inline constexpr int kFirstButton = 1000;

// What the user did with an alert.
struct AlertAnswer {
    int code = kFirstButton;
    bool suppress = false; // the "do not show again" box was ticked
};

} // namespace selfsame
