#include "gui/preferences/PreferencesGeneral.h"

#include "gui/look/Spacing.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace VELIX {

namespace {

constexpr int kSmallestFont = 8; ///< pixels
constexpr int kLargestFont = 24;
const QString kEnglish = QStringLiteral("us");

} // namespace

PreferencesGeneral::PreferencesGeneral(QWidget* parent)
    : QWidget(parent),
      mLanguage(new QComboBox(this)),
      mFontSize(new QComboBox(this)),
      mProfile(new QLineEdit(this)),
      mSelect(new QPushButton(tr("&Select..."), this)),
      mInstalled(new QPushButton(tr("&Use Installed Profile"), this)),
      mProblem(new QLabel(this))
{
    createSelectors();
    createProfileRow();
    createLayout();
}

void PreferencesGeneral::createSelectors()
{
    // Each language by its own name, so that a reader lost in the other one finds back.
    mLanguage->addItem(QStringLiteral("Deutsch"), QStringLiteral("de"));
    mLanguage->addItem(QStringLiteral("English"), kEnglish);
    mLanguage->setObjectName(QStringLiteral("selectorLanguage"));
    connect(mLanguage, &QComboBox::textActivated, this, &PreferencesGeneral::signalLanguage);

    for (int size = kSmallestFont; size <= kLargestFont; ++size) {
        mFontSize->addItem(QString::number(size), size);
    }
    mFontSize->setObjectName(QStringLiteral("selectorFontSize"));
    connect(mFontSize, qOverload<int>(&QComboBox::activated), this,
            [this](int index) { emit signalFontSize(mFontSize->itemData(index).toInt()); });
}

void PreferencesGeneral::createProfileRow()
{
    mProfile->setObjectName(QStringLiteral("profileFile"));
    mProfile->setReadOnly(true);
    mSelect->setObjectName(QStringLiteral("buttonSelectProfile"));
    mSelect->setToolTip(tr("Use a profile file where it lies, without installing it"));
    mInstalled->setObjectName(QStringLiteral("buttonInstalledProfile"));
    connect(mSelect, &QPushButton::clicked, this, &PreferencesGeneral::signalSelectProfile);
    connect(mInstalled, &QPushButton::clicked, this, &PreferencesGeneral::signalInstalledProfile);
    mProblem->setObjectName(QStringLiteral("profileProblem"));
    mProblem->setWordWrap(true);
    mProblem->hide();
}

void PreferencesGeneral::createLayout()
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing::kMargin);
    buttons->addWidget(mSelect);
    buttons->addWidget(mInstalled);
    buttons->addStretch(1);

    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setHorizontalSpacing(Spacing::kGroup);
    form->setVerticalSpacing(Spacing::kMargin);
    form->addRow(tr("&Language"), mLanguage);
    form->addRow(tr("&Font size"), mFontSize);
    form->addRow(tr("&Profile file"), mProfile);
    form->addRow(QString(), buttons);
    form->addRow(mProblem);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addStretch(1);
}

void PreferencesGeneral::showLanguage(const QString& code)
{
    mLanguage->setCurrentIndex(mLanguage->findData(code.isEmpty() ? kEnglish : code));
}

QString PreferencesGeneral::languageCode(const QString& language) const
{
    return mLanguage->itemData(mLanguage->findText(language)).toString();
}

void PreferencesGeneral::showFontSize(int pixels)
{
    mFontSize->setCurrentIndex(mFontSize->findData(pixels));
}

void PreferencesGeneral::showProfile(const QString& file, bool chosen)
{
    const QString path = QDir::toNativeSeparators(QDir::cleanPath(file));
    mProfile->setText(path);
    mProfile->setToolTip(path);
    mInstalled->setEnabled(chosen);
    mInstalled->setToolTip(chosen ? tr("Go back to the profile that was installed")
                                  : tr("The installed profile is in use"));
}

void PreferencesGeneral::showProblem(const QString& sentence)
{
    mProblem->setText(sentence);
    mProblem->setVisible(!sentence.isEmpty());
}

} // namespace VELIX
