// selfsame-cli given names that are not UTF-8 or that hold newlines: it finds and acts on the
// very files named, and prints their paths exactly (--print0) or escaped, one to a line.

#include "CliOptions.h"
#include "CliPaths.h"
#include "names/FileNames.h"
#include "support/ByteFiles.h"
#include "support/TempTree.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <dirent.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;
using namespace selfsame::cli;

// Paths in failure messages as one string, percent-encoded, not as lists of characters.
void PrintTo(const QByteArray &bytes, std::ostream *os)
{
    *os << '"' << QString::fromUtf8(bytes.toPercentEncoding("/ ._-")).toStdString() << '"';
}

namespace
{

// A temporary folder whose entries are made and read by their bytes.
class ByteTree
{
public:
    QByteArray path(const QByteArray &rel) const { return m_root + '/' + rel; }
    QByteArray file(const QByteArray &rel, const QByteArray &content) const
    {
        EXPECT_TRUE(writeBytes(path(rel), content)) << path(rel).toStdString();
        return path(rel);
    }

private:
    TempTree m_tree;
    QByteArray m_root = m_tree.path().toUtf8();
};

std::set<QByteArray> namesIn(const QByteArray &folder)
{
    std::set<QByteArray> names;
    DIR *dir = opendir(folder.constData());
    for (const dirent *entry; dir && (entry = readdir(dir));)
        if (QByteArray name(entry->d_name); name != "." && name != "..") names.insert(name);
    if (dir) closedir(dir);
    return names;
}

struct CliRun {
    int exitCode = -1;
    QByteArray out, err;
};

// QProcess encodes its arguments as UTF-8, which loses the bytes that are not. So each argument
// goes as printf octal escapes, pure ASCII, and sh turns them back into bytes before the exec.
// The trailing "x" keeps the newlines that command substitution would cut from the end.
QString octalEscaped(const QByteArray &bytes)
{
    QString escaped;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
            c == '/')
            escaped += QLatin1Char(c);
        else
            escaped += QStringLiteral("\\%1").arg(uint(byte), 3, 8, QLatin1Char('0'));
    }
    return escaped;
}

CliRun runCli(const QList<QByteArray> &arguments, const QByteArray &home)
{
    static int argc = 1;
    static char name[] = "cli-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance()) new QCoreApplication(argc, argv); // QProcess wants an event dispatcher
    QStringList shell = {QStringLiteral("-c"),
                         QStringLiteral("n=$#; while [ \"$n\" -gt 0 ]; do a=$(printf \"$1\"; printf x); "
                                        "set -- \"$@\" \"${a%x}\"; shift; n=$((n - 1)); done; exec \"$@\""),
                         QStringLiteral("sh"), octalEscaped(SELFSAME_CLI_PATH)};
    for (const QByteArray &argument : arguments)
        shell.append(octalEscaped(argument));
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HOME"), QString::fromUtf8(home));
    env.insert(QStringLiteral("XDG_DATA_HOME"), QString::fromUtf8(home + "/data"));
    env.insert(QStringLiteral("XDG_CACHE_HOME"), QString::fromUtf8(home + "/cache"));
    QProcess process;
    process.setProcessEnvironment(env);
    process.start(QStringLiteral("/bin/sh"), shell);
    EXPECT_TRUE(process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

// --print0 output as groups of paths: every path ends with a NUL, every group with one more.
std::set<std::set<QByteArray>> nulGroups(const QByteArray &out)
{
    std::set<std::set<QByteArray>> groups;
    std::set<QByteArray> group;
    qsizetype start = 0;
    for (qsizetype end; (end = out.indexOf('\0', start)) >= 0; start = end + 1) {
        if (const QByteArray record = out.mid(start, end - start); !record.isEmpty()) {
            group.insert(record);
            continue;
        }
        EXPECT_FALSE(group.empty()) << "an empty group";
        groups.insert(group);
        group.clear();
    }
    EXPECT_TRUE(group.empty() && start == out.size()) << "unterminated: " << out.mid(start).toStdString();
    return groups;
}

// Three groups of names that a lossy decoding confuses or that break lines: the Latin-1
// "bad\xff.txt" beside "bad\xef\xbf\xbd.txt", which literally holds U+FFFD.
QByteArray buildNameTree(const ByteTree &tree)
{
    const QByteArray a = patternBytes(3000, 31), b = patternBytes(3000, 32), c = patternBytes(3000, 33);
    tree.file("files/bad\xff.txt", a);
    tree.file("files/two\nlines.txt", a);
    tree.file("files/bad\xef\xbf\xbd.txt", b);
    tree.file("files/sub\xfe/copy", b);
    tree.file("files/tab\t\\ name", c);
    tree.file("files/plain", c);
    return tree.path("files");
}

TEST(ByteNamesCli, Print0GivesEachGroupAsItsExactPaths)
{
    ByteTree tree;
    const QByteArray files = buildNameTree(tree), home = tree.path("home");
    const CliRun run = runCli({"--no-cache", "-0", files}, home);
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.out.endsWith(QByteArray("\0\0", 2)));
    const std::set<QByteArray> latin1 = {files + "/bad\xff.txt", files + "/two\nlines.txt"};
    const std::set<std::set<QByteArray>> expected = {
        latin1,
        {files + "/bad\xef\xbf\xbd.txt", files + "/sub\xfe/copy"},
        {files + "/tab\t\\ name", files + "/plain"}};
    EXPECT_EQ(nulGroups(run.out), expected);

    // The file argument reaches the search byte for byte: its look-alike has other copies.
    const CliRun anywhere =
        runCli({"--no-cache", "--print0", "--anywhere", files + "/bad\xff.txt", files}, home);
    EXPECT_EQ(anywhere.exitCode, 0) << anywhere.err.toStdString();
    EXPECT_EQ(nulGroups(anywhere.out), std::set<std::set<QByteArray>>{latin1});
}

TEST(ByteNamesCli, TextOutputShowsEachPathEscapedOnOneLine)
{
    ByteTree tree;
    const QByteArray files = buildNameTree(tree);
    const CliRun run = runCli({"--no-cache", files, files + "/gone\xfe\n"}, tree.path("home"));
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    // A blank line ends each group but the last.
    std::set<std::set<QByteArray>> groups;
    std::set<QByteArray> group;
    for (const QByteArray &line : run.out.split('\n')) { // the last newline ends the last group
        if (!line.isEmpty()) {
            group.insert(line);
        } else {
            groups.insert(group);
            group.clear();
        }
    }
    const std::set<std::set<QByteArray>> expected = {
        {files + "/bad\\xFF.txt", files + "/two\\nlines.txt"},
        {files + "/bad\xef\xbf\xbd.txt", files + "/sub\\xFE/copy"}, // valid UTF-8 is shown as it is
        {files + "/tab\\t\\\\ name", files + "/plain"}};
    EXPECT_EQ(groups, expected) << run.out.toStdString();
    // The missing path also shows that an argument arrives byte for byte, its last newline too.
    EXPECT_TRUE(run.err.contains("no such file or folder: " + files + "/gone\\xFE\\n\n"))
        << run.err.toStdString();
}

TEST(ByteNamesCli, EscapingKeepsEveryLineWholeAndEveryPathDistinct)
{
    const std::pair<QByteArray, QByteArray> cases[] = {
        {"bad\xff", "bad\\xFF"},
        {"bad\\xFF", "bad\\\\xFF"}, // a name that looks escaped stays apart from the one escaped
        {"\a\b\t\n\v\f\r", "\\a\\b\\t\\n\\v\\f\\r"},
        {"\x1b[31mred\x7f", "\\x1B[31mred\\x7F"},
        {"next\xc2\x85line\xe2\x80\xa8", "next\\xC2\\x85line\\xE2\\x80\\xA8"},
        {"\xed\xb2\xa9", "\\xED\\xB2\\xA9"}, // an encoded surrogate is not UTF-8
        {"\xf0\x9f\x92\xa9 données 写真", "\xf0\x9f\x92\xa9 données 写真"}, // its low half is U+DCA9
    };
    for (const auto &[name, shown] : cases)
        EXPECT_EQ(escapedText(pathFromBytes(name)).toUtf8(), shown) << name.toStdString();
}

TEST(ByteNamesCli, Print0GoesWithTheTextFormatOnly)
{
    TempTree tree;
    const QString path = tree.folder(QStringLiteral("f"));
    EXPECT_EQ(parseCommandLine({QStringLiteral("-0"), path}).options.format, OutputFormat::NulTerminated);
    for (const QStringList &arguments :
         {QStringList{"--print0", "--format", "json", path}, QStringList{"--format=csv", "-0", path}}) {
        const ParseResult result = parseCommandLine(arguments);
        EXPECT_TRUE(result.error.contains(QStringLiteral("--print0"))) << result.error.toStdString();
    }
}

// keep/orig, dup\xfe/bad\xff and the look-alike folder's dup\xef\xbf\xbd/bad\xff are copies;
// dup\xfe/bad\xef\xbf\xbd has a content of its own. Only dup\xfe/bad\xff is inside dup\xfe.
struct ActionTree {
    ByteTree tree;
    QByteArray content = patternBytes(4000, 34), other = patternBytes(4000, 35);
    QByteArray files = tree.path("files"), home = tree.path("home");
    QByteArray target = tree.file("files/dup\xfe/bad\xff", content);
    QByteArray lookAlike = tree.file("files/dup\xfe/bad\xef\xbf\xbd", other);
    QByteArray lookAlikeFolder = tree.file("files/dup\xef\xbf\xbd/bad\xff", content);
    QByteArray kept = tree.file("files/keep/orig", content);

    CliRun act(const QByteArray &action, bool print0 = false) const
    {
        QList<QByteArray> arguments = {"--no-cache", "--select", "folder", files + "/dup\xfe",
                                       "--inside",   action,     "--yes",  files};
        if (print0) arguments.prepend("-0");
        return runCli(arguments, home);
    }
    void expectOthersUntouched() const
    {
        EXPECT_EQ(readBytes(lookAlike), other);
        EXPECT_EQ(readBytes(lookAlikeFolder), content);
        EXPECT_EQ(readBytes(kept), content);
    }
};

TEST(ByteNamesCli, DeleteRemovesOnlyTheFileOfTheExactName)
{
    const ActionTree t;
    const CliRun run = t.act("--delete");
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, "deleted: " + t.files + "/dup\\xFE/bad\\xFF\n");
    EXPECT_FALSE(existsBytes(t.target));
    t.expectOthersUntouched();
}

TEST(ByteNamesCli, TrashAndPutBackKeepTheExactName)
{
    const ActionTree t;
    const CliRun run = t.act("--trash", true);
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_EQ(run.out, t.target + '\0');
    EXPECT_FALSE(existsBytes(t.target));
    t.expectOthersUntouched();
    const QByteArray trashFiles = t.home + "/data/Trash/files";
    ASSERT_EQ(namesIn(trashFiles), std::set<QByteArray>{"bad\xff"});
    EXPECT_EQ(readBytes(trashFiles + "/bad\xff"), t.content);

    const CliRun back = runCli({"put-back", trashFiles + "/bad\xff"}, t.home);
    EXPECT_EQ(back.exitCode, 0) << back.err.toStdString();
    EXPECT_EQ(back.out, "put back: " + trashFiles + "/bad\\xFF -> " + t.files + "/dup\\xFE/bad\\xFF\n");
    EXPECT_EQ(readBytes(t.target), t.content);
    EXPECT_TRUE(namesIn(trashFiles).empty());
    t.expectOthersUntouched();
}

} // namespace
