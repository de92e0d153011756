#pragma once

// English counted texts ("1 file", "2 files") for tests of the engine's messages, as the
// programs install them at start; removed again when the test ends.

#include "language/EnglishPlurals.h"

#include <QCoreApplication>

class EnglishPluralsInstalled
{
public:
    EnglishPluralsInstalled()
    {
        static int argc = 1;
        static char name[] = "tests", *argv[] = {name, nullptr};
        if (!QCoreApplication::instance()) new QCoreApplication(argc, argv); // translators need one
        QCoreApplication::installTranslator(&m_plurals);
    }
    ~EnglishPluralsInstalled() { QCoreApplication::removeTranslator(&m_plurals); }
    EnglishPluralsInstalled(const EnglishPluralsInstalled &) = delete;
    EnglishPluralsInstalled &operator=(const EnglishPluralsInstalled &) = delete;

private:
    selfsame::EnglishPlurals m_plurals;
};
