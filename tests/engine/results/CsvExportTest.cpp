#include "results/CsvExport.h"

#include "names/FileNames.h"

#include <gtest/gtest.h>

using namespace selfsame;

TEST(CsvExport, NamesThatAreNotUtf8ShowEscapedAndKeepTheirBytes)
{
    ResultItem plain, latin1;
    plain.path = QStringLiteral("/data/plain.txt");
    latin1.path = pathFromBytes(QByteArray("/data/caf\xe9.txt"));
    const QList<CsvColumn> columns{{QStringLiteral("name"), QStringLiteral("Name")}};

    EXPECT_EQ(exportCsv({&plain}, columns, {}), QByteArray("Name\r\nplain.txt\r\n"))
        << "no extra column when not needed";
    EXPECT_EQ(exportCsv({&plain, &latin1}, columns, {}),
              QByteArray("Name,pathBytes\r\nplain.txt,\r\ncaf\\xE9.txt,") +
                  QByteArray("/data/caf\xe9.txt").toBase64() + "\r\n");
}
