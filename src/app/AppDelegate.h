#pragma once

#include <QMainWindow>

namespace selfsame {

// The main window. It will hold the search settings and locations; for now it shows
// what Selfsame is and how to search from the command line.
class AppDelegate : public QMainWindow {
    Q_OBJECT
public:
    explicit AppDelegate(QWidget *parent = nullptr);
};

} // namespace selfsame
