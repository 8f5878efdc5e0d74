#include "gui/look/Resources.h"

#include <QDomDocument>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

struct Message
{
    QString source;
    QString translation;
    bool finished = false;
};

/// By "context: source".
using Messages = std::map<std::string, Message>;

Messages readMessages(const QString& path)
{
    Messages messages;
    QFile file(path);
    QDomDocument document;
    EXPECT_TRUE(file.open(QIODevice::ReadOnly) && document.setContent(&file)) << qPrintable(path);
    const QDomNodeList elements = document.elementsByTagName(QStringLiteral("message"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        const QDomElement context = element.parentNode().firstChildElement(QStringLiteral("name"));
        const QDomElement source = element.firstChildElement(QStringLiteral("source"));
        const QDomElement german = element.firstChildElement(QStringLiteral("translation"));
        const QDomElement form = german.lastChildElement(QStringLiteral("numerusform"));
        messages[(context.text() + QStringLiteral(": ") + source.text()).toStdString()] = {
            source.text(), form.isNull() ? german.text() : form.text(),
            !german.hasAttribute(QStringLiteral("type"))};
    }
    return messages;
}

const Messages& germanMessages()
{
    static const Messages messages = readMessages(QString::fromUtf8(VELIX_TRANSLATION_FILE));
    return messages;
}

/// All matches, sorted, since another language may put them in another order.
QStringList matches(const QString& pattern, const QString& text)
{
    QStringList found;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext()) {
        found.append(match.next().captured());
    }
    found.sort();
    return found;
}

TEST(Translation, IsCompleteAndKeepsWhatTheProgramPutsInOrReads)
{
    const struct
    {
        const char* name;
        QString pattern;
    } rows[] = {
        {"placeholders", QStringLiteral("%L?(\\d+|n)")},
        {"tags", QStringLiteral("</?\\w+>")},
        {"file name patterns", QStringLiteral("\\*[^);]*(?=\\))")},
        {"filter separators", QStringLiteral(";;")},
        {"lines", QStringLiteral("\n")},
        {"space around it", QStringLiteral("^ +| +$")},
        {"running dots", QStringLiteral("\\.\\.\\.")},
        {"accelerator marks", QStringLiteral("&(?=[^&\\s])")},
    };
    ASSERT_FALSE(germanMessages().empty());
    for (const auto& [name, message] : germanMessages()) {
        EXPECT_TRUE(message.finished && !message.translation.trimmed().isEmpty()) << name;
        for (const auto& row : rows) {
            EXPECT_EQ(matches(row.pattern, message.translation),
                      matches(row.pattern, message.source))
                << row.name << " of " << name;
        }
    }
}

TEST(Translation, CoversTheTextsOfTheToolkitInTheWindows)
{
    const struct
    {
        const char* context;
        const char* source;
        const char* german;
    } rows[] = {
        {"QPlatformTheme", "Cancel", "Abbrechen"}, {"QPlatformTheme", "&Yes", "&Ja"},
        {"QPlatformTheme", "Close", "Schließen"},  {"QWizard", "&Next >", "&Weiter >"},
        {"QWizard", "&Finish", "Ab&schließen"},    {"QShortcut", "Ctrl", "Strg"},
    };
    VELIX::initResources();
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral("qt_de"), QStringLiteral(":/trl")));
    for (const auto& row : rows) {
        EXPECT_EQ(translator.translate(row.context, row.source).toStdString(), row.german);
    }
}

// A text that the collector misses, or finds in a wrong class, stays English without a word.
TEST(Translation, HoldsTheTextsThatTheSourcesHold)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("collected.ts"));
    const QString root = QString::fromUtf8(VELIX_SOURCE_FOLDER);
    QStringList arguments = {QStringLiteral("-no-obsolete"), QStringLiteral("-recursive"),
                             QStringLiteral("-I"), root};
    const QStringList folders = QString::fromUtf8(VELIX_FOLDERS_WITH_TEXTS).split(QLatin1Char('|'));
    arguments << folders << QStringLiteral("-ts") << file;
    QProcess collector;
    collector.start(QString::fromUtf8(VELIX_LUPDATE), arguments);
    ASSERT_TRUE(collector.waitForFinished());
    EXPECT_EQ(collector.readAllStandardError().toStdString(), "");

    const Messages collected = readMessages(file);
    for (const auto& [name, message] : collected) {
        // Two classes are outside of the namespace; any other name lacks its class.
        EXPECT_TRUE(name.rfind("VELIX::", 0) == 0 || name.rfind("WidgetGraphBase:", 0) == 0 ||
                    name.rfind("DialogHelp:", 0) == 0)
            << name;
        EXPECT_TRUE(germanMessages().count(name))
            << name << " is new: build velix_update_ts and translate it";
    }
    for (const auto& [name, message] : germanMessages()) {
        EXPECT_TRUE(collected.count(name)) << name << " is gone: build velix_update_ts";
    }
}

} // namespace
