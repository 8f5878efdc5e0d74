// The finished demo card: its hash says whether the generator still writes the same.

#include "tools/democard/DemoCard.h"
#include "card/CardContainer.h"
#include "card/LimitFinder.h"
#include "card/WarningFinder.h"
#include "profile/Profile.h"
#include "tests/support/CapturedDiagnostics.h"

#include <QCryptographicHash>
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace VELIX::Demo {
namespace {

/// To be renewed when the card is meant to change; any other difference is a machine's.
constexpr const char* kHash = "525f409a0564ebb6c280aa714345776bed42b9340c22bb407294cd738f8391f1";

QByteArray hashOf(const QString& folder)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        hash.addData(name.toUtf8());
        hash.addData(&file);
    }
    return hash.result().toHex();
}

TEST(DemoCard, IsTheSameToTheByteEverywhereAndHasSomethingToShow)
{
    const VELIX::Test::CapturedDiagnostics quiet;
    const QTemporaryDir folder;
    EXPECT_FALSE(writeDemoCard(folder.filePath(QStringLiteral("missing"))));
    ASSERT_TRUE(writeDemoCard(folder.path()));
    EXPECT_EQ(hashOf(folder.path()), QByteArray(kHash));

    Profile profile;
    const QString file = QStringLiteral(DEMO_RESOURCES "/Profile.xml");
    ASSERT_EQ(profile.loadProfile(file, QStringLiteral("Tow")), 1);
    CardContainer card(profile);
    ASSERT_TRUE(card.readContainer(folder.path()));
    const std::pair<std::uint32_t, std::size_t> cycles[] = {{1U, 2U}, {2U, 1U}};
    for (const auto& [cycle, flights] : cycles) {
        ASSERT_EQ(card.loadCycle(cycle, -1), 1);
        EXPECT_EQ(card.recordCycles().at(cycle).flights.size(), flights);
        EXPECT_FALSE(findWarnings(card.recordData(), profile).empty());
        // The list is to be read, not scrolled: sensors that hover around a threshold would fill
        // it.
        const std::size_t limits = findLimits(card.recordData(), profile).size();
        EXPECT_GT(limits, 3U);
        EXPECT_LT(limits, 25U);
    }
}

} // namespace
} // namespace VELIX::Demo
