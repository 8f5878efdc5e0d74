#pragma once

#include "platform/viewlib/ViewModel.h"
#include "platform/viewlib/ViewParts.h"

#include <QString>

namespace Vista2D {

/// Reads a line of an instrument, a lamp or a block of named scales.
class ViewInstrumentReader
{
public:
    static constexpr std::size_t kMostScales = 64; ///< of one instrument or name
    static constexpr std::size_t kMostBands = 64;  ///< of one scale; marks as well

    /// Takes what the line belongs to; the binding of named scales is null.
    ViewInstrumentReader(ViewParts& parts, ViewScales& scales, ViewBinding* binding)
        : mParts(parts), mAttributes(parts.attributes()), mScales(scales), mBinding(binding)
    {}

    /// Reads the statement of a word: scale, band or mark; with a binding also number, unit or
    /// case.
    void read(const QString& word);

private:
    enum class Part { Band, Mark };

    void readScale();
    void rangeOf(ViewScale& scale);
    void readBand();
    void readMark();
    void addToScale(Part part, const ViewBand& band);
    void readNumber() { readCaption(ViewCaption::Shows::Number); }
    void readUnit() { readCaption(ViewCaption::Shows::Unit); }
    void readCaption(ViewCaption::Shows shows);
    void readCase();

    ViewParts& mParts;
    ViewAttributes& mAttributes;
    ViewScales& mScales;
    ViewBinding* mBinding;
};

} // namespace Vista2D
