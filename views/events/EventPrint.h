#pragma once

#include "card/RecordEvent.h"
#include "views/common/Printable.h"

#include <QFont>
#include <QSizeF>

#include <cstddef>
#include <vector>

namespace VELIX {

/// Prints a list of events: times to the left, texts on the tint that they have on screen, the
/// headings repeated on every page. Texts that are too long for a line are wrapped.
class EventPrint final : public PrintLayout
{
public:
    struct Texts
    {
        QString time;  ///< heading of the times
        QString event; ///< heading of the events
        QString none;  ///< printed in place of rows if there are none
    };

    /// The events must outlive the layout.
    EventPrint(std::vector<const RecordLimit*> events, const Texts& texts, QPaintDevice& device,
               const QSizeF& room);

    [[nodiscard]] int pageCount() const override;
    void paintPage(QPainter& painter, int page) const override;

private:
    [[nodiscard]] double rowHeight(const RecordLimit& event, QPaintDevice& device) const;
    void breakPages(QPaintDevice& device);
    void paintHeading(QPainter& painter) const;
    void paintRow(QPainter& painter, std::size_t row, double top) const;

    std::vector<const RecordLimit*> mEvents;
    const Texts mTexts;
    QSizeF mRoom;
    QFont mFont;
    QFont mBold;
    double mPoint = 1.0;     ///< pixels
    double mLine = 0.0;      ///< height of a row of one line
    double mTimeWidth = 0.0; ///< with the gap to the texts
    std::vector<std::size_t> mPageStarts;
    std::vector<double> mHeights; ///< of the rows
};

} // namespace VELIX
