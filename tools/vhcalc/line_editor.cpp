#include "line_editor.h"

#include <cerrno>
#include <string>

#include <termios.h>
#include <unistd.h>

namespace vhcalc {

namespace {

// Restores the terminal when it leaves scope, whatever path readLine takes.
class RawMode {
public:
    RawMode() : m_active(tcgetattr(STDIN_FILENO, &m_saved) == 0)
    {
        if (!m_active)
            return;
        termios raw = m_saved;
        raw.c_iflag &= ~static_cast<tcflag_t>(BRKINT | ICRNL | INPCK | ISTRIP | IXON);
        raw.c_cflag |= CS8;
        raw.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | IEXTEN | ISIG);
        raw.c_cc[VMIN] = 1;
        raw.c_cc[VTIME] = 0;
        m_active = tcsetattr(STDIN_FILENO, TCSAFLUSH, &raw) == 0;
    }
    ~RawMode()
    {
        if (m_active)
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_saved);
    }
    RawMode(const RawMode&) = delete;
    RawMode& operator=(const RawMode&) = delete;

private:
    termios m_saved{};
    bool m_active;
};

void writeOut(const std::string& s)
{
    std::size_t done = 0;
    while (done < s.size()) {
        const ssize_t n = ::write(STDOUT_FILENO, s.data() + done, s.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            return;
        done += static_cast<std::size_t>(n);
    }
}

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// Characters (not bytes) in s, for placing the cursor.
std::size_t characters(const std::string& s)
{
    std::size_t n = 0;
    for (char c : s)
        n += isContinuation(c) ? 0 : 1;
    return n;
}

} // namespace

LineEditor::LineEditor(std::string prompt) : m_prompt(std::move(prompt)) {}

void LineEditor::remember(const std::string& line)
{
    if (line.find_first_not_of(" \t") == std::string::npos)
        return;
    if (m_history.empty() || m_history.back() != line)
        m_history.push_back(line);
}

bool LineEditor::readByte(unsigned char& c) const
{
    while (true) {
        const ssize_t n = ::read(STDIN_FILENO, &c, 1);
        if (n == 1)
            return true;
        if (n < 0 && errno == EINTR)
            continue;
        return false;
    }
}

void LineEditor::refresh() const
{
    const std::size_t column = characters(m_prompt) + characters(m_text.substr(0, m_cursor));
    std::string s = "\r" + m_prompt + m_text + "\x1b[K\r";
    if (column > 0)
        s += "\x1b[" + std::to_string(column) + "C";
    writeOut(s);
}

void LineEditor::setText(const std::string& text)
{
    m_text = text;
    m_cursor = m_text.size();
}

void LineEditor::handleEscape()
{
    unsigned char a, b;
    if (!readByte(a) || !readByte(b))
        return;
    if (a == '[' && b >= '0' && b <= '9') {
        unsigned char end;
        if (!readByte(end) || end != '~')
            return;
        if (b == '3' && m_cursor < m_text.size()) {
            std::size_t next = m_cursor + 1;
            while (next < m_text.size() && isContinuation(m_text[next]))
                ++next;
            m_text.erase(m_cursor, next - m_cursor);
        } else if (b == '1' || b == '7') {
            m_cursor = 0;
        } else if (b == '4' || b == '8') {
            m_cursor = m_text.size();
        }
        return;
    }
    if (a != '[' && a != 'O')
        return;
    switch (b) {
    case 'A':  // up: an older line; the line being typed is kept as a draft
        if (m_historyPosition > 0) {
            if (m_historyPosition == m_history.size())
                m_draft = m_text;
            setText(m_history[--m_historyPosition]);
        }
        break;
    case 'B':  // down: a newer line, and after the newest the draft
        if (m_historyPosition < m_history.size()) {
            ++m_historyPosition;
            setText(m_historyPosition == m_history.size() ? m_draft : m_history[m_historyPosition]);
        }
        break;
    case 'C':
        if (m_cursor < m_text.size())
            do
                ++m_cursor;
            while (m_cursor < m_text.size() && isContinuation(m_text[m_cursor]));
        break;
    case 'D':
        while (m_cursor > 0 && isContinuation(m_text[--m_cursor])) {
        }
        break;
    case 'H':
        m_cursor = 0;
        break;
    case 'F':
        m_cursor = m_text.size();
        break;
    default:
        break;
    }
}

bool LineEditor::readLine(std::string& line)
{
    RawMode raw;
    m_text.clear();
    m_cursor = 0;
    m_historyPosition = m_history.size();
    m_draft.clear();
    refresh();
    while (true) {
        unsigned char c;
        if (!readByte(c)) {
            writeOut("\r\n");
            return false;
        }
        switch (c) {
        case '\r':
        case '\n':
            writeOut("\r\n");
            line = m_text;
            return true;
        case 4:  // Ctrl-D: end of input on an empty line, else delete
            if (m_text.empty()) {
                writeOut("\r\n");
                return false;
            }
            if (m_cursor < m_text.size()) {
                std::size_t next = m_cursor + 1;
                while (next < m_text.size() && isContinuation(m_text[next]))
                    ++next;
                m_text.erase(m_cursor, next - m_cursor);
            }
            break;
        case 3:  // Ctrl-C abandons the line being typed
            writeOut("^C\r\n");
            m_text.clear();
            m_cursor = 0;
            m_historyPosition = m_history.size();
            break;
        case 127:
        case 8:  // backspace
            if (m_cursor > 0) {
                std::size_t start = m_cursor - 1;
                while (start > 0 && isContinuation(m_text[start]))
                    --start;
                m_text.erase(start, m_cursor - start);
                m_cursor = start;
            }
            break;
        case 1:
            m_cursor = 0;
            break;
        case 5:
            m_cursor = m_text.size();
            break;
        case 11:  // Ctrl-K
            m_text.erase(m_cursor);
            break;
        case 21:  // Ctrl-U
            m_text.erase(0, m_cursor);
            m_cursor = 0;
            break;
        case 27:
            handleEscape();
            break;
        default:
            // Printable text, including the bytes of UTF-8 characters; other
            // control keys are ignored.
            if (c >= 0x20 || c == '\t') {
                m_text.insert(m_cursor, 1, static_cast<char>(c == '\t' ? ' ' : c));
                ++m_cursor;
            }
            break;
        }
        refresh();
    }
}

} // namespace vhcalc
