#include "gui/look/QwtComboBox.h"
#include "gui/look/WidgetHint.h"

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using VELIX::QwtComboBox;
using VELIX::WidgetHint;

namespace {

class UnitBox : public ::testing::Test
{
protected:
    UnitBox()
    {
        mBox.addItem(QStringLiteral("Metric"), 0);
        mBox.addItem(QStringLiteral("Imperial"), 7);
    }

    QwtComboBox mBox;
    QSignalSpy mTexts{&mBox, qOverload<const QString&>(&QwtComboBox::signalActivated)};
    QSignalSpy mValues{&mBox, qOverload<int>(&QwtComboBox::signalActivated)};
};

TEST_F(UnitBox, SignalsTextAndDataOfTheUsersChoice)
{
    mBox.show();
    QTest::keyClick(&mBox, Qt::Key_Down);
    ASSERT_EQ(mTexts.size(), 1);
    ASSERT_EQ(mValues.size(), 1);
    EXPECT_EQ(mTexts.first().first().toString(), QStringLiteral("Imperial"));
    EXPECT_EQ(mValues.first().first().toInt(), 7);
}

TEST_F(UnitBox, IsSilentWhenTheProgramChooses)
{
    mBox.selectData(7);
    EXPECT_EQ(mBox.currentText(), QStringLiteral("Imperial"));
    mBox.selectText(QStringLiteral("Metric"));
    EXPECT_EQ(mBox.currentIndex(), 0);
    mBox.selectText(QStringLiteral("metric")); // names differ by case
    EXPECT_EQ(mBox.currentIndex(), -1);
    mBox.selectData(99);
    EXPECT_EQ(mBox.currentIndex(), -1);
    EXPECT_EQ(mTexts.size() + mValues.size(), 0);
}

TEST_F(UnitBox, SurvivesAReceiverThatRefillsIt)
{
    QObject::connect(&mBox, qOverload<const QString&>(&QwtComboBox::signalActivated),
                     [this] { mBox.clear(); });
    mBox.show();
    QTest::keyClick(&mBox, Qt::Key_Down);
    ASSERT_EQ(mValues.size(), 1);
    EXPECT_EQ(mValues.first().first().toInt(), 7);
}

TEST(WidgetHint, ShowsItsLinkOnlyWhereThereIsOne)
{
    WidgetHint hint;
    hint.setHint(QStringLiteral("No card open. <b>"));
    hint.resize(300, 200);
    hint.show();
    const auto labels = hint.findChildren<QLabel*>();
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(hint.hint(), QStringLiteral("No card open. <b>"));
    EXPECT_TRUE(labels[0]->isVisible());
    EXPECT_FALSE(labels[1]->isVisible());

    QSignalSpy followed(&hint, &WidgetHint::signalLink);
    hint.setHint(QStringLiteral("No card open."), QStringLiteral("Open <folder>"));
    EXPECT_TRUE(labels[1]->isVisible());
    EXPECT_TRUE(labels[1]->text().contains(QStringLiteral("Open &lt;folder&gt;")));
    QApplication::setActiveWindow(&hint);
    labels[1]->setFocus();
    QTest::keyClick(labels[1], Qt::Key_Tab); // goes to the link
    labels[1]->setFocus(Qt::TabFocusReason);
    QTest::keyClick(labels[1], Qt::Key_Return);
    EXPECT_EQ(followed.size(), 1);
}

} // namespace
