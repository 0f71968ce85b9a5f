// The fixture of every test that touches the store: all empty, a folder of its own, recorders for ports.
#pragma once

#include "card/race_card.h"
#include "core/journal.h"
#include "screen/ports.h"
#include "screen/screen.h"

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <string>
#include <vector>

namespace quillon {

/// Writes one of a line's kept cells and leaves the others.
void writeLineCell(int lineNumber, int column, TextView cell);

class CardTest : public testing::Test {
protected:
    CardTest();
    ~CardTest() override;

    /// What the ports were asked, a line each, in the console's words: "message: ...", "question: ... -> No".
    std::vector<std::string> shown;
    /// Answers to questions and input boxes, first in first out; without one the answer is No or a cancel.
    std::deque<std::string> answers;

    /// A file of the working folder by its path there ("A Quillon PRO/Selections/M1_20260314.pms"); fails the
    /// test where it is missing.
    static std::string contentOf(const std::filesystem::path& path);
    static void put(const std::filesystem::path& path, std::string_view content);
    static bool exists(const std::filesystem::path& path);

    /// True when a kept fault of the journal holds this text.
    static bool journalTells(std::string_view text);

private:
    std::filesystem::path folder_;
    std::filesystem::path before_;
};

} // namespace quillon
