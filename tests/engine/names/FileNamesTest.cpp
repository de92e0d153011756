#include "names/FileNames.h"

#include <gtest/gtest.h>
#include <random>

using namespace selfsame;

namespace
{

std::string roundTrip(const std::string &bytes)
{
    return pathStdBytes(pathFromBytes(bytes));
}

TEST(FileNames, EveryByteStringComesBackExactly)
{
    const std::vector<std::string> samples = {"",
                                              "plain.txt",
                                              "caf\xc3\xa9",
                                              "bad\xff.txt",
                                              "u\xef\xbf\xbd.bin",
                                              "emoji \xf0\x9f\x98\x80\xff",
                                              "\xed\xa0\x80 encoded surrogate",
                                              "\xc0\xaf overlong",
                                              "\xe2\x82 cut short",
                                              "\xf4\x90\x80\x80 too high",
                                              "\x80\x80\x80",
                                              "new\nline",
                                              "latin-1 \xe9t\xe9"};
    for (const std::string &s : samples)
        EXPECT_EQ(roundTrip(s), s);
    std::mt19937 random(7);
    for (int n = 0; n < 5000; ++n) {
        std::string s(std::size_t(random() % 12), '\0');
        for (char &c : s)
            c = char(random() % 256);
        ASSERT_EQ(roundTrip(s), s);
    }
}

TEST(FileNames, NamesThatLookAlikeStayApart)
{
    // A Latin-1 byte and a real U+FFFD: a lossy decoding makes one text of the two.
    const QString invalid = pathFromBytes(std::string("u\xff.bin"));
    const QString replacement = pathFromBytes(std::string("u\xef\xbf\xbd.bin"));
    EXPECT_NE(invalid, replacement);
    EXPECT_TRUE(hasInvalidBytes(invalid));
    EXPECT_FALSE(hasInvalidBytes(replacement));
    EXPECT_EQ(displayPath(invalid), QStringLiteral("u\\xFF.bin"));
    EXPECT_EQ(displayPath(replacement), QStringLiteral("u\uFFFD.bin"));
    // A character beyond the basic plane is two UTF-16 units, never taken for escaped bytes.
    const QString emoji = pathFromBytes(std::string("\xf0\x9f\x93\x80"));
    EXPECT_FALSE(hasInvalidBytes(emoji));
    EXPECT_EQ(pathBytes(emoji), QByteArray("\xf0\x9f\x93\x80"));
    EXPECT_EQ(displayPath(pathFromBytes(std::string("a\x80\xc3"))), QStringLiteral("a\\x80\\xC3"));
}

TEST(FileNames, FileUrlsCarryTheExactBytes)
{
    const QString path = pathFromBytes(std::string("/tmp/a b/bad\xff\xc3\xa9%.txt"));
    const QUrl url = fileUrl(path);
    EXPECT_EQ(url.toEncoded(), QByteArray("file:///tmp/a%20b/bad%FF%C3%A9%25.txt"));
    EXPECT_EQ(pathFromUrl(url), path);
    EXPECT_EQ(pathFromUrl(QUrl::fromLocalFile(QStringLiteral("/x/caf\u00e9 1"))),
              QStringLiteral("/x/caf\u00e9 1"));
    EXPECT_TRUE(pathFromUrl(QUrl(QStringLiteral("https://example.org/a"))).isEmpty());
}

} // namespace
