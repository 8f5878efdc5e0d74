#pragma once

#include "platform/viewlib/ViewAttributes.h"
#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewStatement.h"

#include <QByteArray>

#include <map>
#include <vector>

namespace Vista2D {

class ViewVariables;

/// Reads a view description. The result holds all that could be understood.
///
/// Elements nest through a list of open blocks, so that no file can exhaust the stack.
class ViewReader
{
public:
    static constexpr int kLargestFile = 1 << 20; ///< bytes
    static constexpr std::size_t kMostElements = 5000;
    static constexpr std::size_t kDeepestBlock = 32;
    static constexpr int kMostTicks = 200;         ///< of one scale, short ones included
    static constexpr std::size_t kMostScales = 64; ///< of one instrument or name
    static constexpr std::size_t kMostBands = 64;  ///< of one scale; marks as well
    /// Ticks, bands, marks and texts of all instruments together. Each costs a stroke or a text
    /// where named scales cost the file a word.
    static constexpr std::size_t kMostDetails = 10000;
    static constexpr int kLongestText = 200; ///< characters

    enum class Layout { Wide, Tall, Low };

    explicit ViewReader(ViewVariables& variables, Layout layout = Layout::Wide);

    /// To be called once.
    void read(const QByteArray& text);

    /// Whether the description has a layout; all have the wide one.
    [[nodiscard]] bool hasLayout(Layout layout) const
    {
        return layout == Layout::Wide || (layout == Layout::Tall ? mHasTall : mHasLow);
    }
    [[nodiscard]] ViewModel& model() { return mModel; }
    [[nodiscard]] const std::vector<ViewError>& errors() const { return mErrors.list(); }

private:
    static constexpr double kFarthest = 1e5; ///< view units from the origin
    static constexpr double kLargest = 1e12; ///< value of a scale
    static constexpr double kLargestText = 1000.0;

    /// What the lines of an open block belong to.
    struct Block
    {
        enum class Kind { File, Group, Instrument, Lamp, Scales, Unknown };

        Kind kind = Kind::File;
        int line = 0;
        QString word;
        QPointF origin;           ///< of the coordinates, in view units
        ConditionList conditions; ///< of all that it holds
        std::size_t element = 0;  ///< place of the instrument
        QString scales;           ///< name of the scales
    };
    using Handler = void (ViewReader::*)(ViewStatement&, ViewAttributes&);

    static const std::map<QString, Handler>& handlers(Block::Kind kind);
    void readStatement(ViewStatement& statement);
    void skipBlock(const ViewStatement& statement);
    void close(int line);
    void open(const ViewStatement& statement, Block next);
    [[nodiscard]] Block& block() { return mBlocks.back(); }
    void nameColors();

    // --- what the file itself and groups hold
    void readView(ViewStatement& statement, ViewAttributes& attributes);
    bool readSize(ViewAttributes& attributes, const char* name, Layout layout);
    void readColors(ViewStatement& statement, ViewAttributes& attributes);
    void readScales(ViewStatement& statement, ViewAttributes& attributes);
    void readGroup(ViewStatement& statement, ViewAttributes& attributes);
    void readGauge(ViewStatement& statement, ViewAttributes& attributes);
    void readBar(ViewStatement& statement, ViewAttributes& attributes);
    void readValue(ViewStatement& statement, ViewAttributes& attributes);
    void readLamp(ViewStatement& statement, ViewAttributes& attributes);
    void readLabel(ViewStatement& statement, ViewAttributes& attributes);
    void readRectangle(ViewStatement& statement, ViewAttributes& attributes);
    void readLine(ViewStatement& statement, ViewAttributes& attributes);
    void readArc(ViewStatement& statement, ViewAttributes& attributes);

    // --- what instruments hold
    void readScale(ViewStatement& statement, ViewAttributes& attributes);
    void readBand(ViewStatement& statement, ViewAttributes& attributes);
    void readMark(ViewStatement& statement, ViewAttributes& attributes);
    void readNumberText(ViewStatement& statement, ViewAttributes& attributes);
    void readUnitText(ViewStatement& statement, ViewAttributes& attributes);
    void readCase(ViewStatement& statement, ViewAttributes& attributes);

    template <class Shape>
    void add(const ViewStatement& statement, ViewAttributes& attributes, Shape shape);
    /// The instrument that the open block belongs to.
    [[nodiscard]] ViewBinding& binding();
    [[nodiscard]] ViewScales& openScales();
    enum class Part { Band, Mark };
    void addToScale(ViewAttributes& attributes, Part part, const ViewBand& band);
    bool shownText(ViewAttributes& attributes, const char* name, QString& target);
    void readCaption(ViewAttributes& attributes, ViewCaption::Shows shows);
    bool bindVariable(ViewAttributes& attributes, ViewBinding& target);
    void bindInstrument(ViewAttributes& attributes, ViewBinding& target);
    void condition(ViewAttributes& attributes, ConditionList& target);
    bool place(ViewAttributes& attributes, const char* name, QPointF& target);
    bool box(ViewAttributes& attributes, QRectF& target);
    void textStyle(ViewAttributes& attributes, ViewText& style);
    void rangeOf(ViewAttributes& attributes, ViewScale& scale);
    void checkInstrument(const Block& closed);
    void checkRange(const Block& closed);

    ViewVariables& mVariables;
    Layout mLayout;
    bool mHasTall = false;
    bool mHasLow = false;
    ViewModel mModel;
    ViewErrors mErrors;
    ViewAttributes::ColorNames mColors;
    std::map<QString, ViewScales> mScales; ///< by name
    std::vector<Block> mBlocks;
    std::size_t mIgnored = 0; ///< blocks opened too deep
    std::size_t mDetails = 0; ///< of the instruments so far
    bool mFull = false;       ///< the file has too many elements
    bool mCrowded = false;    ///< it has too many details
};

} // namespace Vista2D
