// What the manual says, in both languages: complete, linked, illustrated, and true to the texts of
// the program.

#include "gui/help/HelpManual.h"
#include "gui/look/Resources.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

namespace VELIX {

namespace {

QDomElement pageBody(const QString& folder, const QString& topic)
{
    QFile file(QStringLiteral("%1/%2.html").arg(folder, topic));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
        return {};
    }
    return document.documentElement().firstChildElement(QStringLiteral("body"));
}

QList<QDomElement> elements(const QDomElement& parent, const QString& tag)
{
    QList<QDomElement> found;
    const QDomNodeList list = parent.elementsByTagName(tag);
    for (int i = 0; i < list.size(); ++i) {
        found.append(list.at(i).toElement());
    }
    return found;
}

/// The elements in reading order with what refers to something, but without texts. Words that
/// are emphasised, quoted or keys differ from language to language, and so are left out.
QString structureOf(const QDomElement& element)
{
    static const QStringList inWords{QStringLiteral("i"), QStringLiteral("b"),
                                     QStringLiteral("code"), QStringLiteral("kbd")};
    if (inWords.contains(element.tagName())) {
        return {};
    }
    QString text = element.tagName();
    for (const char* name : {"name", "href", "src"}) {
        text += QLatin1Char(' ') + element.attribute(QLatin1String(name));
    }
    text += QLatin1Char('\n');
    for (QDomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        text += structureOf(child);
    }
    return text;
}

/// A text as the user reads it, without mnemonics and the colon of a label.
QString shown(QString text)
{
    text = text.remove(QLatin1Char('&')).trimmed();
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1).trimmed() : text;
}

QSet<QString> textsOfProgram(const QString& tag)
{
    QFile file(QString::fromUtf8(VELIX_TRANSLATION_FILE));
    QDomDocument document;
    QSet<QString> texts;
    if (file.open(QIODevice::ReadOnly) && document.setContent(&file)) {
        for (const QDomElement& element : elements(document.documentElement(), tag)) {
            texts.insert(shown(element.text()));
        }
    }
    return texts;
}

struct Tongue
{
    const char* locale;
    const char* texts; ///< element of the translation file that holds the texts shown
};

class HelpManualTest : public ::testing::TestWithParam<Tongue>
{
protected:
    HelpManualTest() { initResources(); }

    QString folder() const { return HelpManual::folderOf(QLatin1String(GetParam().locale)); }
};

TEST_P(HelpManualTest, PagesAreCompleteLinkedAndIllustrated)
{
    const HelpManual manual(folder());
    QSet<QString> titles;
    for (const QString& topic : HelpManual::topics()) {
        SCOPED_TRACE(topic.toStdString());
        const HelpPage* page = manual.page(topic);
        ASSERT_NE(page, nullptr);
        titles.insert(page->title);
        const QDomElement body = pageBody(folder(), topic);
        for (const QDomElement& link : elements(body, QStringLiteral("a"))) {
            const QString address = link.attribute(QStringLiteral("href"));
            const HelpPage* target =
                manual.page(QFileInfo(address.section(QLatin1Char('#'), 0, 0)).baseName());
            ASSERT_TRUE(address.isEmpty() || target != nullptr) << address.toStdString();
            const QString anchor = address.section(QLatin1Char('#'), 1);
            EXPECT_TRUE(anchor.isEmpty() ||
                        std::any_of(target->sections.begin(), target->sections.end(),
                                    [&](const auto& part) { return part.anchor == anchor; }))
                << address.toStdString();
        }
        for (const QDomElement& image : elements(body, QStringLiteral("img"))) {
            const QString name = image.attribute(QStringLiteral("src"));
            EXPECT_FALSE(QImage(folder() + QLatin1Char('/') + name).isNull()) << name.toStdString();
            EXPECT_FALSE(image.attribute(QStringLiteral("alt")).isEmpty()) << name.toStdString();
        }
    }
    EXPECT_EQ(titles.size(), HelpManual::topics().size());
}

TEST_P(HelpManualTest, QuotesTheProgramAsItSpeaks)
{
    const QSet<QString> texts = textsOfProgram(QLatin1String(GetParam().texts));
    for (const QString& topic : HelpManual::topics()) {
        for (const QDomElement& quote : elements(pageBody(folder(), topic), QStringLiteral("b"))) {
            EXPECT_TRUE(texts.contains(quote.text()))
                << topic.toStdString() << ": " << quote.text().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, HelpManualTest,
                         ::testing::Values(Tongue{"us", "source"}, Tongue{"de", "translation"}),
                         [](const auto& row) { return std::string(row.param.locale); });

TEST(HelpManualLanguagesTest, PagesAreBuiltAlike)
{
    initResources();
    for (const QString& topic : HelpManual::topics()) {
        const QString english = structureOf(pageBody(HelpManual::folderOf({}), topic));
        EXPECT_FALSE(english.isEmpty());
        EXPECT_EQ(english, structureOf(pageBody(HelpManual::folderOf(QStringLiteral("de")), topic)))
            << topic.toStdString();
    }
}

TEST(HelpManualSearchTest, FindsTheSectionThatAReaderIsAfter)
{
    initResources();
    struct Row
    {
        const char* locale;
        const char* words;
        const char* topic;  ///< null: nothing is found
        const char* anchor; ///< null: any
    };
    constexpr Row kRows[] = {
        {"us", "graph mouse", "graph", "mouse"},
        {"us", "take-off distance", "statistic", "figures"},
        {"us", "TILE SERVER", "map", "tiles"},
        {"us", "thresh", "files", nullptr},
        {"us", "kmz", "export", "standard"},
        {"us", "graph zeppelin", nullptr, nullptr}, // all words are wanted
        {"us", "a", nullptr, nullptr},
        {"us", "  ", nullptr, nullptr},
        {"de", "Maus Graph", "graph", "mouse"},
        {"de", "startstrecke", "statistic", "figures"},
        {"de", "Kachelserver", "map", "tiles"},
        {"de", "schriftgröße", "preferences", nullptr},
        {"de", "threshold", "files", nullptr},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.words);
        const HelpManual manual(HelpManual::folderOf(QLatin1String(row.locale)));
        const QString words = QString::fromUtf8(row.words);
        const std::vector<HelpHit> hits = manual.search(words);
        if (row.topic == nullptr) {
            EXPECT_TRUE(hits.empty());
            continue;
        }
        ASSERT_FALSE(hits.empty());
        EXPECT_EQ(manual.pages()[hits.front().page].topic, QLatin1String(row.topic));
        for (const HelpHit& hit : hits) {
            EXPECT_LT(hit.snippet.size(), 130);
        }
        if (row.anchor != nullptr) {
            EXPECT_EQ(hits.front().anchor, QLatin1String(row.anchor));
        }
    }
}

} // namespace

} // namespace VELIX
