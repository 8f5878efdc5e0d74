#include "views/window/DataPages.h"

#include "gui/look/ImageHandler.h"
#include "gui/look/WidgetHint.h"
#include "views/common/Printable.h"
#include "views/window/PageTabBar.h"

#include <QVariant>

namespace VELIX {

namespace {

constexpr int kIconSize = 32;

} // namespace

DataPages::DataPages(QWidget* parent)
    : QStackedWidget(parent), mTabs(new PageTabBar(this)), mCover(new WidgetHint(this))
{
    mTabs->setExpanding(false);
    mTabs->setDrawBase(false);
    mTabs->setIconSize({kIconSize, kIconSize});
    connect(mTabs, &QTabBar::currentChanged, this, &QStackedWidget::setCurrentIndex);
    mCover->setObjectName(QStringLiteral("hintLoading"));
    mCover->setAutoFillBackground(true);
    mCover->hide();
}

void DataPages::addPage(QWidget* page, const char* icon, const QString& label,
                        const char* helpTopic)
{
    const int index = mTabs->addTab(ImageHandler::instance().icon(QLatin1String(icon)), label);
    mTabs->setTabData(index, QLatin1String(helpTopic));
    addWidget(page);
}

void DataPages::showPage(QWidget* page)
{
    mTabs->setCurrentIndex(indexOf(page));
}

const Printable* DataPages::printable() const
{
    return dynamic_cast<const Printable*>(currentWidget());
}

QString DataPages::helpTopic() const
{
    return mTabs->tabData(currentIndex()).toString();
}

void DataPages::cover(const QString& sentence)
{
    mCover->setHint(sentence);
    mCover->setGeometry(rect());
    mCover->raise();
    mCover->show();
}

void DataPages::uncover()
{
    mCover->hide();
}

void DataPages::resizeEvent(QResizeEvent* event)
{
    QStackedWidget::resizeEvent(event);
    mCover->setGeometry(rect());
}

} // namespace VELIX
