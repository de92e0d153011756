#include "AppName.h"
#include "AttributeTolerance.h"
#include "LaunchRequest.h"
#include "SingleInstance.h"

#include <QCoreApplication>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace selfsame;

TEST(LaunchRequest, ArgumentsBecomeAbsoluteLocalPaths)
{
    EXPECT_EQ(absoluteLocalPaths({QStringLiteral("photos/../music"), QStringLiteral("/srv/x/"),
                                  QStringLiteral("file:///home/u/My%20Pictures"),
                                  QStringLiteral("https://example.org/a"), QString()},
                                 QStringLiteral("/home/u")),
              (QStringList{QStringLiteral("/home/u/music"), QStringLiteral("/srv/x"),
                           QStringLiteral("/home/u/My Pictures")}));
}

TEST(LaunchRequest, SurvivesTheHandOverMessage)
{
    const LaunchRequest search{true, {QStringLiteral("/a"), QStringLiteral("/b c")}};
    const LaunchRequest back = LaunchRequest::fromMessage(search.toMessage());
    EXPECT_TRUE(back.search);
    EXPECT_EQ(back.paths, search.paths);
    const LaunchRequest open = LaunchRequest::fromMessage(LaunchRequest{false, {}}.toMessage());
    EXPECT_FALSE(open.search);
    EXPECT_TRUE(open.paths.isEmpty());
}

TEST(SingleInstance, ALaterStartHandsItsRequestToTheRunningOne)
{
    QTemporaryDir dir;
    const QString name = dir.filePath(QStringLiteral("socket"));
    SingleInstance first(name);
    EXPECT_FALSE(first.handOver({QStringLiteral("open")})) << "nobody listens yet";
    ASSERT_TRUE(first.listen());
    QSignalSpy received(&first, &SingleInstance::received);

    SingleInstance second(name);
    const QStringList message{QStringLiteral("search"), QStringLiteral("/home/u/Pictures")};
    ASSERT_TRUE(second.handOver(message));
    ASSERT_TRUE(received.wait(5000));
    EXPECT_EQ(received.first().first().toStringList(), message);
}

TEST(SingleInstance, ReplacesASocketLeftByACrashedInstance)
{
    QTemporaryDir dir;
    const QString name = dir.filePath(QStringLiteral("socket"));
    QFile leftover(name);
    ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));
    leftover.close();
    SingleInstance next(name);
    EXPECT_TRUE(next.listen());
}

TEST(AppName, MenusAreRenamedAtEveryDepth)
{
    QMenu menu;
    menu.addAction(QStringLiteral("About [NSApp] and [NSApp]"));
    QMenu *sub = menu.addMenu(QStringLiteral("Sub"));
    QMenu *deeper = sub->addMenu(QStringLiteral("[NSApp] Deeper"));
    deeper->addAction(QStringLiteral("Quit [NSApp]"));
    replaceAppNameInMenu(&menu);
    const QString app = QCoreApplication::applicationName();
    EXPECT_EQ(menu.actions()[0]->text(), QStringLiteral("About %1 and %1").arg(app));
    EXPECT_EQ(sub->menuAction()->text(), QStringLiteral("Sub"));
    EXPECT_EQ(deeper->menuAction()->text(), app + QStringLiteral(" Deeper"));
    EXPECT_EQ(deeper->actions()[0]->text(), QStringLiteral("Quit ") + app);
}

TEST(AttributeTolerance, ShownForNumbersDatesAndUnknownTypesWithFittingUnits)
{
    EXPECT_TRUE(attributeToleranceShown(NumberType));
    EXPECT_TRUE(attributeToleranceShown(DateType));
    EXPECT_TRUE(attributeToleranceShown(AnyType));
    EXPECT_FALSE(attributeToleranceShown(StringType));
    EXPECT_FALSE(attributeToleranceShown(BooleanType));

    const QString latitude = QStringLiteral("kMDItemLatitude");
    EXPECT_EQ(attributeToleranceUnits(NumberType, latitude, true),
              QStringLiteral("arcseconds (1″ ≈ 30\u00a0m)"));
    EXPECT_EQ(attributeToleranceUnits(AnyType, QStringLiteral("kMDItemLongitude"), false),
              QStringLiteral("arcseconds (1″ ≈ 100\u00a0ft on the equator)"));
    EXPECT_EQ(attributeToleranceUnits(DateType, latitude, true), QStringLiteral("seconds"));
    EXPECT_EQ(attributeToleranceUnits(NumberType, QStringLiteral("kMDItemDurationSeconds"), true),
              QStringLiteral("seconds"));
    EXPECT_EQ(attributeToleranceUnits(NumberType, QStringLiteral("kMDItemAestheticScore"), true), QString());
    EXPECT_EQ(attributeToleranceUnits(StringType, latitude, true), QString());
}
