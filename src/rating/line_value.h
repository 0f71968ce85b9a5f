// The running line at work: arithmetic on its figure, and what several of its steps ask.
#pragma once

#include "core/text.h"

namespace quillon {

/// Adds points to `cursor.lineValue` (negative ones are credits) and writes it back as plain text: " 61.3"
/// less 0.7 is "60.6". False, with the text as it stands, where it is no number: lines without a figure are
/// ordinary, and the step that meets one ends there. A recorder notes the points, and of several what they are
/// for.
bool addToLineValue(double points, TextView what = {});

/// Tells a recorder, where one stands, what a step worked with.
void noteTerm(double figure, TextView what = {});

/// Whether it is a qualifier's.
bool isQualifier();

} // namespace quillon
