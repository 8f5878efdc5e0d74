#pragma once

#include "platform/viewlib/ViewAttributes.h"
#include "platform/viewlib/ViewErrors.h"
#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewParts.h"

#include <QByteArray>

#include <vector>

namespace Vista2D {

class ViewStatement;
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
    /// Ticks, bands, marks and texts of all instruments together. Each costs a stroke or a text
    /// where named scales cost the file a word.
    static constexpr std::size_t kMostDetails = 10000;

    enum class Layout { Wide, Tall, Low };

    explicit ViewReader(ViewVariables& variables, Layout layout = Layout::Wide);

    /// Reads a description, once.
    void read(const QByteArray& text);

    /// Whether the description has a layout; all have the wide one.
    [[nodiscard]] bool hasLayout(Layout layout) const
    {
        return layout == Layout::Wide || (layout == Layout::Tall ? mHasTall : mHasLow);
    }
    [[nodiscard]] ViewModel& model() { return mModel; }
    [[nodiscard]] const std::vector<ViewError>& errors() const { return mErrors.list(); }

private:
    /// What the lines of an open block belong to.
    struct Block
    {
        enum class Kind { File, Group, Instrument, Lamp, Scales, Unknown };

        Kind kind = Kind::File;
        int line = 0;
        QString word;
        QPointF origin;           ///< of the coordinates, in view units
        ConditionList conditions; ///< of all that it holds
        std::size_t element = 0;  ///< index of the instrument
        QString scales;           ///< name of the scales
    };
    using Handler = void (ViewReader::*)(ViewStatement&, ViewParts&);

    static Handler handlerOf(Block::Kind kind, const QString& word);
    void readStatement(ViewStatement& statement);
    void skipBlock(const ViewStatement& statement);
    void close(int line);
    void open(const ViewStatement& statement, Block next);
    [[nodiscard]] Block& block() { return mBlocks.back(); }
    void nameColors();

    void readView(ViewStatement& statement, ViewParts& parts);
    bool readSize(ViewAttributes& attributes, const char* name, Layout layout);
    void readColors(ViewStatement& statement, ViewParts& parts);
    void readScales(ViewStatement& statement, ViewParts& parts);
    void readGroup(ViewStatement& statement, ViewParts& parts);
    void readElement(ViewStatement& statement, ViewParts& parts);
    void readInstrumentLine(ViewStatement& statement, ViewParts& parts);

    void add(const ViewStatement& statement, ViewParts& parts, ViewShape shape);
    void checkInstrument(const Block& closed);
    void checkRange(const Block& closed);

    ViewVariables& mVariables;
    Layout mLayout;
    bool mHasTall = false;
    bool mHasLow = false;
    ViewModel mModel;
    ViewErrors mErrors;
    ViewAttributes::ColorNames mColors;
    ViewParts::NamedScales mScales;
    std::vector<Block> mBlocks;
    std::size_t mIgnored = 0; ///< blocks opened too deep
    std::size_t mDetails = 0; ///< of the instruments so far
    bool mFull = false;       ///< the file has too many elements
    bool mCrowded = false;    ///< it has too many details
};

} // namespace Vista2D
