#include "search/NamePatterns.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

struct PatternCase {
    const char *line, *pattern;
};

TEST(NamePatterns, SkipLineBecomesExpression)
{
    const PatternCase cases[] = {
        {"*", "^.*$"},
        {"*.*", "^.+\\.[^\\.]+$"},
        {"*tmp*", "\\Qtmp\\E"},
        {"*.jpg", "\\Q.jpg\\E$"},
        {"IMG*.*", "^\\QIMG\\E.*\\.[^\\.]+$"},
        {"IMG*", "^\\QIMG\\E"},
        {"a*b*c", "^\\Qa\\E.*\\Qb*c\\E$"},
        {"name.txt", "^\\Qname.txt\\E$"},
        {"a/b", "^\\Qa/b\\E$"},
        {"/^a.*z$/", "^^a.*z$$"},
        {"x/\\d+/y", "^\\Qx\\E\\d+\\Qy\\E$"},
        {"x/\\d+/", "^\\Qx\\E\\d+$"},
        {"/\\d+/y", "^\\d+\\Qy\\E$"},
    };
    for (const PatternCase &c : cases)
        EXPECT_EQ(skipPatternToRegex(QString::fromUtf8(c.line)).toStdString(), c.pattern) << c.line;
}

struct SkipCase {
    const char *line, *name;
    bool skipped;
};

TEST(NamePatterns, SkipExpressionsMatchNames)
{
    const SkipCase cases[] = {
        {"*", "anything", true},
        {"*.*", "photo.jpg", true},
        {"*.*", "archive.tar.gz", true},
        {"*.*", "README", false},
        {"*.*", "ends with dot.", false},
        {"IMG*", "img_0001.jpg", true},
        {"IMG*", "my IMG.jpg", false},
        {"IMG*.*", "IMG_1.jpg", true},
        {"*.jpg", "x.jpg.txt", false},
        {"*tmp*", "xxTMPyy", true},
        {"a.b", "a.b", true},
        {"a.b", "axb", false},      // the dot is literal
        {"a*b*c", "axxb*c", true},  // the second star is literal
        {"a*b*c", "axxbyc", false},
        {"/^a.*z$/", "ABCZ", true},
        {"/^a.*z$/", "abc", false},
        {"x/\\d+/.txt", "x42.txt", true},
        {"Ünï*", "ünïcode", true},
    };
    for (const SkipCase &c : cases) {
        const auto expressions = compileSkipPatterns({QString::fromUtf8(c.line)}, nullptr);
        ASSERT_TRUE(expressions.has_value()) << c.line;
        ASSERT_EQ(expressions->size(), 1);
        EXPECT_EQ(expressions->first().match(QString::fromUtf8(c.name)).hasMatch(), c.skipped)
            << c.line << " / " << c.name;
    }
}

TEST(NamePatterns, InvalidSkipLinesReportLastFailure)
{
    PatternError error;
    const QStringList lines{QStringLiteral("/(/"), QStringLiteral("ok"), QStringLiteral("/[/")};
    EXPECT_FALSE(compileSkipPatterns(lines, &error));
    EXPECT_EQ(error.pattern.toStdString(), "^[$");
    EXPECT_FALSE(error.message.isEmpty());
    EXPECT_EQ(error.message, QRegularExpression(QStringLiteral("^[$")).errorString());

    const auto expressions = compileSkipPatterns({QString(), QStringLiteral("*.tmp"), QString()}, &error);
    ASSERT_TRUE(expressions.has_value());
    EXPECT_EQ(expressions->size(), 1);
}

TEST(NamePatterns, SuffixTemplateBecomesExpression)
{
    const PatternCase cases[] = {
        {" copy", "\\Q copy\\E$"},
        {" Copy", "\\Q copy\\E$"},
        {" copy #", "\\Q copy \\E[1-9]\\d?$"},
        {" (#)", "\\Q (\\E[1-9]\\d?\\Q)\\E$"},
        {"#", "[1-9]\\d?$"},
        {"#x", "[1-9]\\d?\\Qx\\E$"},
        {"v##", "\\Qv\\E\\d+$"},
        {"#-##", "\\Q#-\\E\\d+$"}, // "##" wins over an earlier single "#"
    };
    for (const PatternCase &c : cases)
        EXPECT_EQ(commonSuffixToRegex(QString::fromUtf8(c.line)).toStdString(), c.pattern) << c.line;
}

struct SuffixCase {
    const char *name;
    int matchingIndex; // index in the default list, or -1 for none
};

TEST(NamePatterns, DefaultSuffixesMatchNameEnds)
{
    const QList<QRegularExpression> suffixes = compileCommonSuffixes(QString());
    ASSERT_EQ(suffixes.size(), 5);
    const SuffixCase cases[] = {
        {"report copy", 0},   {"report copy 2", 1}, {"photo 7", 2},     {"photo-12", 3},
        {"photo (99)", 4},    {"photo 07", -1},     {"photo (100)", -1}, {"photo COPY", -1},
        {"photocopy", -1},
    };
    for (const SuffixCase &c : cases) {
        for (int i = 0; i < suffixes.size(); ++i) {
            const bool matches = suffixes[i].match(QString::fromUtf8(c.name)).hasMatch();
            // " #" also matches the end of " copy 2", which is the same suffix.
            if (i == 2 && c.matchingIndex == 1)
                continue;
            EXPECT_EQ(matches, i == c.matchingIndex) << c.name << " / suffix " << i;
        }
    }
}

TEST(NamePatterns, ExtensionsSplitAtWhiteSpaceOnly)
{
    const QSet<QString> extensions = normalizedExtensions(QStringLiteral(" JPG .png\ttar.gz\na,b  ..  "));
    const QSet<QString> expected{QStringLiteral("jpg"), QStringLiteral("png"), QStringLiteral("targz"),
                                 QStringLiteral("a,b")};
    EXPECT_EQ(extensions, expected);
    EXPECT_EQ(joinedExtensions(extensions).toStdString(), "a,b jpg png targz");
    EXPECT_TRUE(normalizedExtensions(QStringLiteral(" . ")).isEmpty());
}

} // namespace
