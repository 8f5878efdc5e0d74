#include "views/window/PageTabBar.h"

#include <gtest/gtest.h>

#include <QPixmap>
#include <QTest>

namespace VELIX {
namespace {

QIcon square()
{
    QPixmap pixmap(32, 32);
    pixmap.fill(Qt::blue);
    return pixmap;
}

TEST(PageTabBarTest, InANarrowWindowOnlyTheCurrentTabKeepsItsText)
{
    PageTabBar bar;
    bar.setExpanding(false);
    bar.setIconSize({32, 32});
    const QStringList labels = {QStringLiteral("Data"), QStringLiteral("Fault Matrix"),
                                QStringLiteral("Warning Lamps")};
    for (const QString& label : labels) {
        bar.addTab(square(), label);
    }
    bar.resize(bar.sizeHint());
    bar.show();
    for (int i = 0; i < bar.count(); ++i) {
        EXPECT_FALSE(bar.isCompact(i));
    }
    const int wide = bar.tabRect(1).width();

    bar.resize(bar.minimumSizeHint());
    QCoreApplication::processEvents();
    EXPECT_FALSE(bar.isCompact(0));
    EXPECT_TRUE(bar.isCompact(1));
    EXPECT_LT(bar.tabRect(1).width(), wide);
    EXPECT_GE(bar.tabRect(1).width(), 32);
    EXPECT_EQ(bar.tabText(1), labels[1]);
    EXPECT_EQ(bar.tabToolTip(1), labels[1]);

    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.tabRect(1).center());
    EXPECT_EQ(bar.currentIndex(), 1);
    EXPECT_EQ(bar.tabRect(1).width(), wide);
    EXPECT_TRUE(bar.isCompact(0));
    EXPECT_LE(bar.tabRect(2).right(), bar.width());
}

} // namespace
} // namespace VELIX
