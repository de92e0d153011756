#include "results/NameCompare.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

int keyOrder(const QString &a, const QString &b)
{
    std::u16string x, y;
    appendNaturalSortKey(a, x);
    appendNaturalSortKey(b, y);
    const int c = x.compare(y);
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

TEST(NameCompare, NaturalOrderAndItsPrecomputedKeysAgree)
{
    // Equal numbers with other leading zeros fall back to plain order: "a09" before "a9".
    const QStringList ordered = {"",         "a",      "A2",      "a09",   "a9",         "a10",
                                 "a10b",     "a010c",  "Ärger",   "arges", "file 9.txt", "File 10.txt",
                                 "file 100", "file_2", "img0001", "IMG2",  "z",          "Ω"};
    for (qsizetype i = 0; i < ordered.size(); ++i)
        for (qsizetype j = 0; j < ordered.size(); ++j) {
            const int expected = i < j ? -1 : (i > j ? 1 : 0);
            EXPECT_EQ(naturalCompare(ordered[i], ordered[j]), expected)
                << ordered[i].toStdString() << " / " << ordered[j].toStdString();
            // Keys may tie where the texts differ only in case or leading zeros; never contradict.
            const int byKey = keyOrder(ordered[i], ordered[j]);
            EXPECT_TRUE(byKey == expected || byKey == 0)
                << ordered[i].toStdString() << " / " << ordered[j].toStdString();
        }
    EXPECT_EQ(keyOrder(QStringLiteral("a09"), QStringLiteral("A9")), 0);
}

TEST(NameCompare, ExtensionsAndLowerCasePlainOrder)
{
    EXPECT_EQ(pathExtension(u"archive.tar.GZ").toString(), QStringLiteral("GZ"));
    EXPECT_TRUE(pathExtension(u".profile").isEmpty());
    EXPECT_TRUE(pathExtension(u"README").isEmpty());
    EXPECT_EQ(deletingPathExtension(u"a.b.c").toString(), QStringLiteral("a.b"));
    EXPECT_EQ(compareLowercase(u"ABC", u"abd"), -1);
    EXPECT_EQ(compareLowercase(u"abc", u"AB"), 1);
    EXPECT_EQ(compareLowercase(u"B10", u"b9"), -1); // plain, not natural
}

} // namespace
