// What each step on a past line's road did, in racing words. A reason is asked for right after its step, says what the
// step read, and takes the points from the step's own terms.
#pragma once

#include "core/text.h"
#include "rating/line_road.h"

namespace quillon {

/// Points as they are shown: "+1.5", "-0.8", "+2.675".
Text pointsText(double points);

/// "half-mile" for "1/2"; the size as it stands, where it has no word.
Text courseWord(TextView courseSize);

Text whyLastQuarter(const RoadStep& step);
Text whyRange(const RoadStep& step);
Text whyCourse(const RoadStep& step);
Text whyNothingYet(const RoadStep& step);
Text whyPost(const RoadStep& step);
Text whyLatePost(const RoadStep& step);
Text whyLead(const RoadStep& step);
Text whyParked(const RoadStep& step);
Text whyParkedInTheWind(const RoadStep& step);
Text whyParkedTwoWide(const RoadStep& step);
Text whyQualifier(const RoadStep& step);
Text whyClass(const RoadStep& step);
Text whyFavourite(const RoadStep& step);
Text whyFinish(const RoadStep& step);
Text whyRating(const RoadStep& step);

} // namespace quillon
