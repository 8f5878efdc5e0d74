#pragma once

#include "views/graph/model/GraphTrace.h"
#include "views/graph/model/GraphYScale.h"

#include <QString>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace VELIX {

/// The traces of a graph, how they are shown, in which order, and which of them is selected.
///
/// Traces are known by their number, from 0. Numbers beyond count() are ignored everywhere.
class GraphTraceSet
{
public:
    /// Red, green, blue, each 0 to 1.
    using Color = std::array<float, 3>;

    /// A trace and how it is shown.
    struct ParStruct
    {
        GraphTrace trace;
        QString name = QStringLiteral("NoName");
        QString unit = QStringLiteral("-"); ///< shown with the values
        Color color = {1.0F, 0.0F, 0.0F};
        QString colorKey;        ///< "GraphColor%d" of the trace number
        int precision = 2;       ///< decimals of the readout
        bool active = false;     ///< is listed in the legend and, if visible, drawn
        bool visible = true;     ///< false: hidden for the moment, but still listed
        bool samples = false;    ///< draw the sample points
        GraphYScale yScale;      ///< the trace's own scale, kept by calcFrame()
        std::uint64_t newAt = 0; ///< internal: see GraphModel::hasNewValue
    };

    /// Number that means no trace.
    static constexpr unsigned int kNoTrace = ~0U;

    static constexpr unsigned int kMaxTraces = 1000;
    /// Makes @p count fresh traces, kMaxTraces at most; those that there were are forgotten.
    void setMaxParameters(unsigned int count);
    [[nodiscard]] unsigned int count() const
    {
        return static_cast<unsigned int>(mParameters.size());
    }
    /// @pre i < count()
    [[nodiscard]] const ParStruct& parameter(unsigned int i) const { return mParameters[i]; }
    void setParameterName(unsigned int i, const std::string& name);
    void setParameterUnit(unsigned int i, const std::string& unit);
    void setParameterColor(unsigned int i, float red, float green, float blue);
    void setPrecision(unsigned int i, int decimals);
    void setVisible(unsigned int i, bool visible);
    void activateSamples(unsigned int i, bool on);
    [[nodiscard]] unsigned int nrActive() const;
    /// Whether the trace is active and not hidden.
    [[nodiscard]] bool isShown(unsigned int i) const;
    /// Whether a shown trace has a sample.
    [[nodiscard]] bool hasShownSamples() const;

    /// The numbers of all traces in the order of display, from top to bottom.
    [[nodiscard]] const std::vector<unsigned int>& displayOrder() const { return mDisplayOrder; }
    /// Moves the trace at position @p from of the order of display to position @p to. Its number
    /// stays.
    void moveParameter(unsigned int from, unsigned int to);

    /// The trace that the cursor's Y value and the average refer to; kNoTrace without an active
    /// trace. While none was selected, or the selected one is not shown any more, the first shown
    /// trace is.
    [[nodiscard]] unsigned int selectedTrace() const;
    void setSelectedTrace(unsigned int i);

    /// See GraphTrace::getValue. A gap gives true and a value that is not finite.
    [[nodiscard]] bool getValue(unsigned int i, double t, double& v) const;
    /// Times of the first and the latest sample; false and 0, 0 without samples.
    bool getParameterRangeX(unsigned int i, double& first, double& last) const;
    /// The lowest and the highest value; false and 0, 0 without finite samples.
    bool getParameterRangeY(unsigned int i, double& low, double& high) const;

    /// Changes with everything that can be seen, so that a widget repaints only when there is
    /// something new.
    [[nodiscard]] std::uint64_t revision() const { return mRevision; }
    /// Changes with what grid, traces and legend are made of, but not with what is only drawn over
    /// them: cursor, markers and selection.
    [[nodiscard]] std::uint64_t plotRevision() const { return mPlotRevision; }

protected:
    GraphTraceSet() = default;
    ~GraphTraceSet() = default;
    GraphTraceSet(const GraphTraceSet&) = default;
    GraphTraceSet& operator=(const GraphTraceSet&) = default;
    GraphTraceSet(GraphTraceSet&&) = default;
    GraphTraceSet& operator=(GraphTraceSet&&) = default;

    [[nodiscard]] std::vector<ParStruct>& parameters() { return mParameters; }
    [[nodiscard]] const std::vector<ParStruct>& parameters() const { return mParameters; }
    /// To be called with every change that can be seen.
    void touch()
    {
        ++mRevision;
        ++mPlotRevision;
    }
    /// The same for a change of cursor, markers or selection.
    void touchPointer() { ++mRevision; }

private:
    [[nodiscard]] ParStruct* find(unsigned int i);

    std::vector<ParStruct> mParameters;
    std::vector<unsigned int> mDisplayOrder;
    unsigned int mSelected = kNoTrace;
    std::uint64_t mRevision = 0;
    std::uint64_t mPlotRevision = 0;
};

} // namespace VELIX
