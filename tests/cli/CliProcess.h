#pragma once

// The built selfsame-cli run as a child process, for the tests that need a real process:
// paths on its command line, its exit, or its death at a fault point.

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

struct CliRun {
    bool killed = false; // ended by a signal
    int exitCode = -1;
    QByteArray out, err;
};

inline CliRun runCli(const QStringList &arguments,
                     const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    static int argc = 1;
    static char name[] = "cli-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance()) new QCoreApplication(argc, argv); // QProcess wants one
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(SELFSAME_CLI_PATH), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    return {process.exitStatus() == QProcess::CrashExit, process.exitCode(), process.readAllStandardOutput(),
            process.readAllStandardError()};
}
