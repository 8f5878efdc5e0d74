#include "gui/preferences/DialogPreferences.h"

#include "core/MapSettings.h"
#include "gui/profile/ProfileSettings.h"
#include "tests/gui/TestProgram.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTest>

using namespace VELIX;
using namespace VELIX::Test;

namespace {

class DialogPreferencesTest : public ::testing::Test
{
protected:
    DialogPreferencesTest()
        : dialog(program.context, profiles, program.dialogs),
          profileChanges(&dialog, &DialogPreferences::signalProfileFileChanged),
          languageChanges(&dialog, &DialogPreferences::signalLanguageChanged)
    {
        dialog.show();
    }

    template <typename T>
    T& find(const char* name)
    {
        return *dialog.findChild<T*>(QLatin1String(name));
    }
    void choose(const char* selector, const QString& text)
    {
        auto& box = find<QComboBox>(selector);
        const int index = box.findText(text);
        box.setCurrentIndex(index);
        emit box.activated(index);
        emit box.textActivated(text);
    }
    /// Selects an entry of the file dialog that has this content.
    QString chooseFile(const QByteArray& content)
    {
        program.dialogs.file = program.home.filePath(QStringLiteral("chosen.xml"));
        EXPECT_TRUE(writeFile(program.dialogs.file, content));
        find<QPushButton>("buttonSelectProfile").click();
        return program.dialogs.file;
    }

    TestProgram program;
    ProfileSettings profiles{program.settings, program.paths};
    DialogPreferences dialog;
    QSignalSpy profileChanges;
    QSignalSpy languageChanges;
};

} // namespace

TEST_F(DialogPreferencesTest, ShowsWhatTheSettingsHold)
{
    const struct
    {
        const char* locale;
        const char* size;
        const char* language;
        const char* shownSize;
    } rows[] = {{"", "", "English", "12"},
                {"us", "8", "English", "8"},
                {"de", "24", "Deutsch", "24"},
                {"fr", "99", "", ""}};
    for (const auto& row : rows) {
        program.settings.setString("Locale", row.locale);
        row.size[0] == '\0' ? void() : program.settings.setString("FontSize", row.size);
        dialog.fillDialog();
        EXPECT_EQ(find<QComboBox>("selectorLanguage").currentText(), QLatin1String(row.language));
        EXPECT_EQ(find<QComboBox>("selectorFontSize").currentText(), QLatin1String(row.shownSize));
    }
    EXPECT_EQ(find<QComboBox>("selectorFontSize").count(), 17); // 8 to 24
}

TEST_F(DialogPreferencesTest, ALanguageIsStoredAndHoldsAfterARestart)
{
    for (const bool restart : {false, true}) {
        program.dialogs.agrees = restart;
        choose("selectorLanguage", restart ? QStringLiteral("English") : QStringLiteral("Deutsch"));
        EXPECT_EQ(program.storedSetting("Locale"), QLatin1String(restart ? "us" : "de"));
        EXPECT_EQ(program.control.restarts, restart ? 1 : 0);
        EXPECT_EQ(program.dialogs.takeAsked(),
                  QStringList(QStringLiteral(
                      "VELIX Info: Please restart VELIX to load new language ! [Restart now|"
                      "Restart later: changes will not applied until next restart]")));
    }
    EXPECT_EQ(languageChanges.count(), 2);
}

TEST_F(DialogPreferencesTest, AFontSizeIsStoredAndCutsNoText)
{
    dialog.setStyleSheet(QStringLiteral("QWidget {font-size: 24px;}"));
    choose("selectorFontSize", QStringLiteral("24"));
    EXPECT_EQ(program.storedSetting("FontSize"), QStringLiteral("24"));
    EXPECT_EQ(program.control.styles, QStringList(QStringLiteral(":/styles/style.VELIX.css")));
    QTest::qWait(20);
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        EXPECT_TRUE(!button->isVisible() || button->width() >= button->sizeHint().width())
            << qPrintable(button->text());
    }
}

TEST_F(DialogPreferencesTest, AProfileFileIsKeptAsItsPathUntilTheInstalledOneIsWanted)
{
    find<QPushButton>("buttonSelectProfile").click(); // cancelled
    EXPECT_EQ(program.dialogs.takeAsked(), QStringList(QStringLiteral("Select Profile File")));
    EXPECT_EQ(program.dialogs.lastStart, QStringLiteral("../profiles"));
    EXPECT_EQ(program.dialogs.lastFilter, QStringLiteral("VELIX Profile (*.xml);;All files (*.*)"));
    EXPECT_FALSE(find<QPushButton>("buttonInstalledProfile").isEnabled());

    const QString other = chooseFile("<Other/>");
    EXPECT_EQ(profileChanges.count(), 0);
    EXPECT_EQ(program.setting("ProfileFile"), QString());
    EXPECT_TRUE(find<QLabel>("profileProblem").text().contains(other));
    EXPECT_TRUE(find<QLabel>("profileProblem").isVisible());
    EXPECT_EQ(program.dialogs.takeAsked().size(), 1); // no box

    const QString file = chooseFile("<CanAerospaceProfile/>");
    EXPECT_EQ(program.storedSetting("Profile"), QDir::current().relativeFilePath(file));
    EXPECT_EQ(program.storedSetting("ProfileFile"), file);
    EXPECT_EQ(profiles.profileFile(), file);
    EXPECT_EQ(find<QLineEdit>("profileFile").text(), file);
    EXPECT_EQ(profileChanges.count(), 1);

    find<QPushButton>("buttonInstalledProfile").click();
    EXPECT_EQ(profiles.profileFile(), profiles.installedFile());
    EXPECT_EQ(program.storedSetting("ProfileFile"), QString());
    EXPECT_EQ(profileChanges.count(), 2);
}

TEST_F(DialogPreferencesTest, MapValuesAreStoredAsTheyAreChanged)
{
    find<QListWidget>("pageList").setCurrentRow(1);
    EXPECT_EQ(dialog.findChild<QStackedWidget*>()->currentIndex(), 1);
    auto& server = find<QLineEdit>("tileServer");
    server.setText(QStringLiteral("http://tiles.example/"));
    emit server.editingFinished();
    find<QSpinBox>("tileCacheLimit").setValue(1000);
    find<QDoubleSpinBox>("mapContrast").setValue(1.5);
    find<QDoubleSpinBox>("mapFactor").stepUp();
    find<QCheckBox>("mapShading").setChecked(false);
    EXPECT_FALSE(find<QDoubleSpinBox>("mapBrightness").isEnabled());
    const struct
    {
        const char* key;
        const char* changed;
        const char* byDefault;
    } rows[] = {{"TileCacheLimit", "1000", "500"},
                {"MapShading", "false", "true"},
                {"MapShadingContrast", "1.5", "1"},
                {"MapShadingBrightness", "1", "1"},
                {"MapShadingFactor", "0.6", "0.5"}};
    EXPECT_EQ(program.storedSetting("TileServer"), QStringLiteral("http://tiles.example/"));
    for (const auto& row : rows) {
        EXPECT_EQ(program.storedSetting(row.key), QLatin1String(row.changed)) << row.key;
    }
    find<QPushButton>("buttonMapDefaults").click();
    for (const auto& row : rows) {
        EXPECT_EQ(program.storedSetting(row.key), QLatin1String(row.byDefault)) << row.key;
    }
    EXPECT_EQ(program.storedSetting("TileServer").toStdString(), MapSettings().tileServer);
}
