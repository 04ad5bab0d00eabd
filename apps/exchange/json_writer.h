// Writes JSON from the outside in; commas are put where they belong.
#pragma once

#include <string>
#include <string_view>

#include "exchange/texts.h"

namespace exchange {

class JsonWriter {
  public:
    explicit JsonWriter(std::string& text) : m_text(text) {}

    /// What comes next begins a line.
    void newLine() { m_isNewLine = true; }
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }
    /// The member's value follows.
    void key(std::string_view windows1252) {
        separate();
        appendJsonText(m_text, windows1252);
        m_text += ':';
        m_isFirst = true;
    }
    void text(std::string_view windows1252) {
        separate();
        appendJsonText(m_text, windows1252);
    }
    void utf8(std::string_view utf8) {
        separate();
        appendJsonUtf8(m_text, utf8);
    }
    void number(int number) {
        separate();
        m_text += std::to_string(number);
    }
    void number(double number) {
        separate();
        appendNumber(m_text, number);
    }
    void truth(bool truth) {
        separate();
        m_text += truth ? "true" : "false";
    }

  private:
    void separate() {
        if (!m_isFirst) m_text += ',';
        m_isFirst = false;
        if (m_isNewLine) m_text += '\n';
        m_isNewLine = false;
    }
    void begin(char bracket) {
        separate();
        m_text += bracket;
        m_isFirst = true;
    }
    void end(char bracket) {
        m_text += bracket;
        m_isFirst = false;
    }

    std::string& m_text;
    bool m_isFirst = true;
    bool m_isNewLine = false;
};

}  // namespace exchange
