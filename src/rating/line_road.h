// The road of a past line to its rating, for a user who asks why. The steps that rate a line note it while a
// recorder stands; without one, as nearly always, a step looks for it and nothing more.
#pragma once

#include "core/numbers.h"
#include "core/text.h"

#include <vector>

namespace quillon {

/// A figure that a step worked with.
struct RoadTerm {
    double figure = 0;
    TextView what{}; ///< "at the half", where a step has several
};

/// A step of a line's road.
struct RoadStep {
    TextView name{};
    Text before{};                 ///< the figure, without blanks round it; "-" of a line that has none
    Text after{};                  ///< of the last step, the rating
    std::vector<RoadTerm> terms{}; ///< what the step added, and negative what it took off
    Text reason{};                 ///< in racing words

    double points() const;
};

struct LineRoad {
    Integer race = 0;
    Integer entry = 0;
    Integer line = 0;       ///< 1 is the latest
    Integer lineNumber = 0; ///< through the whole card
    Integer row = 0;        ///< in the race's data view
    std::vector<RoadStep> steps{};
};

/// Stands from its making to its end and takes up the roads of the lines that are rated meanwhile.
class RoadRecorder {
public:
    /// Takes up the lines of these numbers through the card; all lines where there are none.
    explicit RoadRecorder(std::vector<Integer> lineNumbers = {});
    ~RoadRecorder();
    RoadRecorder(const RoadRecorder&) = delete;
    RoadRecorder& operator=(const RoadRecorder&) = delete;

    /// The line at work begins. False where it isn't taken up.
    bool beginsLine();
    void noteTerm(const RoadTerm& term);
    void noteRating(TextView rating);
    /// A step has run; its reason is asked for what it read.
    void noteStep(TextView name, Text (*reason)(const RoadStep& step));
    void endLine();

    const std::vector<LineRoad>& roads() const { return roads_; } ///< in the order of the table

private:
    RoadRecorder* outer_;
    std::vector<Integer> wanted_;
    std::vector<LineRoad> roads_;
    bool recording_ = false;
    LineRoad road_;
    RoadStep step_;
};

/// The recorder that stands, or none.
extern RoadRecorder* roadRecorder;

} // namespace quillon
