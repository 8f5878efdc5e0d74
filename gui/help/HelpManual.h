#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace VELIX {

/// The text under one heading of a page, without mark-up.
struct HelpSection
{
    QString anchor; ///< empty above the first heading of second order
    QString title;
    QString text;
};

/// One page of the manual.
struct HelpPage
{
    QString
        topic; ///< its name in links and for callers, such as "graph"; the same in all languages
    QString title;
    std::vector<HelpSection> sections;
};

/// A section in which all words of a search occur.
struct HelpHit
{
    std::size_t page = 0; ///< index into HelpManual::pages()
    QString anchor;
    QString title;   ///< of the section
    QString snippet; ///< of its text, around the first word found
    int score = 0;
};

/// The user's manual in one language: its pages in reading order, and a search in their texts.
class HelpManual
{
public:
    /// Reads the pages from a folder of files "topic.html"; those that are missing or not well
    /// formed are left out with a diagnostic line.
    explicit HelpManual(const QString& folder);

    /// The folder of the built-in manual in the language of the setting "Locale".
    [[nodiscard]] static QString folderOf(const QString& locale);
    /// All topics, in reading order.
    [[nodiscard]] static const QStringList& topics();

    const QString& folder() const { return mFolder; }
    const std::vector<HelpPage>& pages() const { return mPages; }
    /// Null for a topic that has no page.
    const HelpPage* page(const QString& topic) const;

    /// The sections that hold all of the words, whatever their case, best first. A word also
    /// counts as part of a longer one; titles weigh more than texts.
    [[nodiscard]] std::vector<HelpHit> search(const QString& words) const;
    /// The words of a search; single letters do not count.
    [[nodiscard]] static QStringList wordsOf(const QString& search);

private:
    QString mFolder;
    std::vector<HelpPage> mPages;
};

} // namespace VELIX
