#include "screen/told_ports.h"

namespace quillon {
namespace {

// "kind: " or, where the system gives the box a title, "kind [title]: ".
Text headed(const char* kind, const Text& title) {
    return title.empty() ? Text{kind} + ": " : Text{kind} + " [" + title + "]: ";
}

} // namespace

Ports toldPorts(TellLine tell, TakeAnswer nextAnswer) {
    Ports told;
    told.message = [=](const Text& text, const Text& title) { tell(headed("message", title) + text); };
    told.question = [=](const Text& text, const Text& title) {
        const bool yes = nextAnswer() == "Yes";
        tell(headed("question", title) + text + (yes ? " -> Yes" : " -> No"));
        return yes;
    };
    told.input = [=](const Text& text, const Text& title) {
        const auto answer = nextAnswer();
        tell(headed("input", title) + text + " -> " + answer.value_or("(cancel)"));
        return answer;
    };
    told.beep = [=] { tell("beep"); };
    told.view = [=](const FilePlace& file) { tell("view: " + shownPath(file)); };
    told.browse = [=](const Text& address) { tell("browse: " + address); };
    told.run = [=](const Text& program) { tell("run: " + program); };
    told.hide = [=](const FilePlace& file) { tell("hide: " + shownPath(file)); };
    told.note = [=](const Text& text) { tell("note: " + text); };
    told.error = [=](const Text& text) { tell("error: " + text); };
    told.printLine = [=](const Text& line, PrintStyle style) {
        tell((style == PrintStyle::emphasised ? "print emphasised: " : "print: ") + line);
    };
    told.printPage = [=] { tell("print new page"); };
    told.printEnd = [=] { tell("print end"); };
    told.end = [=] { tell("end"); };
    return told;
}

} // namespace quillon
