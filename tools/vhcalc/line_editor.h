#pragma once

// Reading lines at a terminal: a prompt, editing within the line, and the
// lines of the session recalled with the up and down arrows. The terminal is
// in raw mode only while a line is being read, so a long calculation can
// still be interrupted with Ctrl-C.

#include <string>
#include <vector>

namespace vhcalc {

class LineEditor {
public:
    explicit LineEditor(std::string prompt);

    // False at the end of input: Ctrl-D on an empty line, or a closed
    // terminal.
    bool readLine(std::string& line);

    // Adds a line to the history, unless it is blank or repeats the last.
    void remember(const std::string& line);

private:
    void refresh() const;
    void setText(const std::string& text);
    bool readByte(unsigned char& c) const;
    void handleEscape();

    std::string m_prompt;
    std::vector<std::string> m_history;
    std::size_t m_historyPosition = 0;
    std::string m_draft;
    std::string m_text;
    std::size_t m_cursor = 0;
};

} // namespace vhcalc
