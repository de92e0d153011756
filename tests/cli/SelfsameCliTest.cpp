// Runs the built selfsame-cli on trees made in temporary folders.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include "support/MediaFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <iostream>
#include <iterator>
#include <memory>
#include <set>
#include <unistd.h>

namespace {

// Each group as its sorted paths relative to the searched folder.
using Groups = std::set<std::vector<std::string>>;

struct CliRun {
    int exitCode = -1;
    QByteArray out, err;
};

QProcess *startCli(const QStringList &arguments)
{
    static int argc = 1;
    static char name[] = "cli-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv); // QProcess wants an event dispatcher
    auto *process = new QProcess;
    process->start(QStringLiteral(SELFSAME_CLI_PATH), arguments);
    return process;
}

CliRun runCli(const QStringList &arguments)
{
    std::unique_ptr<QProcess> process(startCli(arguments));
    EXPECT_TRUE(process->waitForFinished(120'000) && process->exitStatus() == QProcess::NormalExit);
    return {process->exitCode(), process->readAllStandardOutput(), process->readAllStandardError()};
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

Groups groupsOf(const QJsonArray &groupArray, const QString &root = {})
{
    Groups groups;
    for (const QJsonValue &group : groupArray) {
        std::vector<std::string> paths;
        for (const QJsonValue &item : root.isEmpty() ? group.toArray() : group["items"].toArray())
            paths.push_back(root.isEmpty()
                                ? item.toString().toStdString()
                                : QDir(root).relativeFilePath(item["path"].toString()).toStdString());
        std::sort(paths.begin(), paths.end());
        groups.insert(paths);
    }
    return groups;
}

Groups jsonGroups(const QByteArray &json, const QString &root)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return groupsOf(document["groups"].toArray(), root);
}

// Content A twice plus a hard link and a hidden copy, content B twice plus a hidden copy,
// a same-size file that differs from A in its last byte, and empty files.
class SelfsameCli : public ::testing::Test {
protected:
    void SetUp() override
    {
        writeFile(path("a/one.txt"), contentA);
        ASSERT_EQ(::link(QFile::encodeName(path("a/one.txt")), QFile::encodeName(path("a/one link.txt"))), 0);
        writeFile(path("b/one copy.txt"), contentA);
        writeFile(path(".cache/one.txt"), contentA);
        writeFile(path("c/x.bin"), contentB);
        writeFile(path("c/sub/y.bin"), contentB);
        writeFile(path("c/sub/.y.bin"), contentB);
        writeFile(path("trap.txt"), QByteArray(contentA).replace(contentA.size() - 1, 1, "!"));
        writeFile(path("empty"), {});
    }
    QString path(const QString &relative) const { return dir.filePath(relative); }

    QTemporaryDir dir;
    const QByteArray contentA = QByteArray("alpha ").repeated(300),
                     contentB = QByteArray("beta ").repeated(70);
};

TEST_F(SelfsameCli, FindsTheGroupsOfTheTree)
{
    const CliRun run = runCli({"--format", "json", dir.path()});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(jsonGroups(run.out, dir.path()),
              (Groups{{"a/one link.txt", "a/one.txt", "b/one copy.txt"}, {"c/sub/y.bin", "c/x.bin"}}));
    // The hard link shares the storage of a/one.txt and frees nothing.
    EXPECT_EQ(QJsonDocument::fromJson(run.out)["summary"]["reclaimableBytes"].toInteger(),
              contentA.size() + contentB.size());

    const CliRun shallow = runCli({"--depth", "2", "--ext", "TXT", "--format", "json", dir.path()});
    EXPECT_EQ(shallow.exitCode, 0) << shallow.err.toStdString();
    EXPECT_EQ(jsonGroups(shallow.out, dir.path()),
              (Groups{{"a/one link.txt", "a/one.txt", "b/one copy.txt"}}));
}

TEST_F(SelfsameCli, ExitCodesForNoDuplicatesMissingPathsAndBadInput)
{
    const CliRun none = runCli({path("a/one.txt"), path("trap.txt"), path("empty")});
    EXPECT_EQ(none.exitCode, 1) << none.err.toStdString();
    EXPECT_TRUE(none.out.isEmpty()) << none.out.toStdString();

    const QString missing = path("no such folder");
    const CliRun partly = runCli({path("c"), missing});
    EXPECT_EQ(partly.exitCode, 0) << partly.err.toStdString();
    EXPECT_TRUE(partly.err.contains(missing.toUtf8())) << partly.err.toStdString();
    EXPECT_EQ(partly.out, (path("c/sub/y.bin") + '\n' + path("c/x.bin") + '\n').toUtf8());

    EXPECT_EQ(runCli({missing}).exitCode, 2);
    const CliRun skip = runCli({"--skip", "/a(b/", dir.path()});
    EXPECT_EQ(skip.exitCode, 2);
    EXPECT_TRUE(skip.err.contains("Invalid regular expression:\n^a(b$")) << skip.err.toStdString();
}

TEST(SelfsameCliMetadata, ListsAttributesAndGroupsMediaByDuration)
{
    const CliRun all = runCli({"--list-attributes"});
    EXPECT_EQ(all.exitCode, 0);
    EXPECT_TRUE(all.out.contains("kMDItemDurationSeconds\tDuration\tNumber\t")) << all.out.toStdString();
    const CliRun songs = runCli({"--list-attributes", "flac"});
    EXPECT_EQ(songs.exitCode, 0);
    EXPECT_TRUE(songs.out.contains("kMDItemAlbum\tAlbum\tString\t"));
    EXPECT_FALSE(songs.out.contains("kMDItemLatitude"));
    EXPECT_EQ(runCli({"--list-attributes", "nosuchextension"}).exitCode, 1);

    if (const QString missing = missingMediaTools(); !missing.isEmpty())
        GTEST_SKIP() << missing.toStdString();
    QTemporaryDir dir;
    ASSERT_TRUE(makeAudio(dir.filePath("take1.wav"), 3.0));
    ASSERT_TRUE(makeAudio(dir.filePath("take2.flac"), 3.04));
    ASSERT_TRUE(makeAudio(dir.filePath("other.wav"), 5.0));
    const CliRun found = runCli({"--mode", "duration", "--format", "json", dir.path()});
    EXPECT_EQ(found.exitCode, 0) << found.err.toStdString();
    const QJsonArray groups = QJsonDocument::fromJson(found.out)["groups"].toArray();
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(groupsOf(groups, dir.path()), (Groups{{"take1.wav", "take2.flac"}}));
    EXPECT_DOUBLE_EQ(groups[0]["items"][0]["duration"].toDouble(), 3.0);

    const CliRun none = runCli({"--mode", "duration", "--tolerance", "0", "--summary", dir.path()});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_TRUE(none.err.contains("No duplicate files were found.")) << none.err.toStdString();
    const CliRun noValue = runCli({"--mode", "attribute", "--attribute", "kMDItemAlbum", "--summary", dir.path()});
    EXPECT_TRUE(noValue.err.contains("No file has been found with the specified spotlight attribute."));
}

TEST_F(SelfsameCli, SelectionRulesMarkCopiesWithoutTouchingThem)
{
    const CliRun run = runCli({"--select", "folder", path("c/sub"), "--inside", dir.path()});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, ("  " + path("a/one link.txt") + "\n  " + path("a/one.txt") + "\n  " + path("b/one copy.txt") +
                        "\n\nselect " + path("c/sub/y.bin") + "\nkeep " + path("c/x.bin") + '\n')
                           .toUtf8());
    EXPECT_TRUE(QFile::exists(path("c/sub/y.bin")));
}

TEST(SelfsameCliInterrupt, SigintStopsTheSearchWithStatus130)
{
    // 4,000 files of 16 KiB in pairs that differ from the other pairs only in the middle.
    QTemporaryDir dir;
    QByteArray content(16 * 1024, 'x');
    for (int i = 0; i < 4000; ++i) {
        content.replace(8 * 1024, 8, QByteArray::number(i % 2000).rightJustified(8, '0'));
        writeFile(dir.filePath(QStringLiteral("d%1/f%2.bin").arg(i % 40).arg(i)), content);
    }
    std::unique_ptr<QProcess> process(startCli({"--format", "json", dir.path()}));
    ASSERT_TRUE(process->waitForStarted());
    // SIGINT goes out once /proc shows a handler for it. The child is not reaped meanwhile,
    // so a search that ends first leaves a zombie.
    bool sent = false, endedFirst = false;
    for (int attempt = 0; attempt < 20'000 && !sent && !endedFirst; ++attempt, QThread::usleep(500)) {
        QFile status(QStringLiteral("/proc/%1/status").arg(process->processId()));
        ASSERT_TRUE(status.open(QIODevice::ReadOnly));
        const QByteArray text = status.readAll();
        endedFirst = text.contains("State:\tZ");
        const QByteArray caught = text.mid(text.indexOf("SigCgt:") + 7).trimmed().left(16);
        if (!endedFirst && (caught.toULongLong(nullptr, 16) & (1ull << (SIGINT - 1))))
            sent = ::kill(pid_t(process->processId()), SIGINT) == 0;
    }
    ASSERT_TRUE(process->waitForFinished(60'000));
    ASSERT_EQ(process->exitStatus(), QProcess::NormalExit);
    const QByteArray out = process->readAllStandardOutput(), err = process->readAllStandardError();
    const Groups printed = jsonGroups(out, dir.path());
    const bool partial = QJsonDocument::fromJson(out)["partial"].toBool();
    if (endedFirst) {
        std::cout << "[   NOTE   ] the search ended before SIGINT could be sent\n";
        EXPECT_EQ(process->exitCode(), 0);
        EXPECT_EQ(printed.size(), 2000u);
    } else {
        EXPECT_EQ(process->exitCode(), 130);
        // Stopped before every group was found, the output says so, in the file and to the user.
        EXPECT_EQ(partial, err.contains("interrupted: the output is partial")) << err.toStdString();
        if (printed.size() < 2000u) {
            EXPECT_TRUE(partial) << "groups are missing and the output does not say so";
        }
    }
    EXPECT_FALSE(endedFirst && partial);
    // Whatever was printed is true: files i and i + 2000 and nothing else.
    for (const std::vector<std::string> &group : printed) {
        ASSERT_EQ(group.size(), 2u);
        const auto number = [](const std::string &path) {
            return std::stoi(path.substr(path.find("/f") + 2));
        };
        EXPECT_EQ(number(group[0]) % 2000, number(group[1]) % 2000) << group[0] << " " << group[1];
    }
}

TEST(SelfsameCliCorpus, GroupsMatchTheCorpusManifest)
{
    const QString script = QStringLiteral(SELFSAME_MAKE_CORPUS);
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (!QFileInfo(script).isFile() || python.isEmpty())
        GTEST_SKIP() << "needs python3 and the corpus script " << script.toStdString();
    QTemporaryDir dir;
    const QString corpus = dir.filePath(QStringLiteral("corpus"));
    QProcess make;
    make.start(python, {script, corpus, "--files", "3000", "--seed", "7"});
    ASSERT_TRUE(make.waitForFinished(300'000) && make.exitCode() == 0)
        << make.readAllStandardError().toStdString();
    QFile manifestFile(corpus + ".expected.json");
    ASSERT_TRUE(manifestFile.open(QIODevice::ReadOnly));
    const QJsonDocument manifest = QJsonDocument::fromJson(manifestFile.readAll());
    const Groups expected = groupsOf(manifest["groups"].toArray());
    ASSERT_FALSE(expected.empty());

    const CliRun all = runCli({"--include-hidden", "--format", "json", corpus});
    ASSERT_EQ(all.exitCode, 0) << all.err.toStdString();
    const Groups found = jsonGroups(all.out, corpus);
    Groups missing, extra;
    std::ranges::set_difference(expected, found, std::inserter(missing, missing.end()));
    std::ranges::set_difference(found, expected, std::inserter(extra, extra.end()));
    EXPECT_EQ(missing, Groups{}) << "groups not found";
    EXPECT_EQ(extra, Groups{}) << "groups found that are not in the manifest";

    const CliRun visible = runCli({"--format", "json", corpus});
    ASSERT_EQ(visible.exitCode, 0) << visible.err.toStdString();
    EXPECT_EQ(qint64(jsonGroups(visible.out, corpus).size()),
              manifest["stats"]["groups_without_hidden"].toInteger());
}

} // namespace
