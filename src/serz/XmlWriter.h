#pragma once
// Writes a Document as the converter's XML: one token a line, TAB indentation, fixed attribute
// order; the workbench scans this text line by line, so the layout is exact.

#include "serz/Document.h"
#include "serz/Options.h"

#include <string>
#include <string_view>
#include <vector>

namespace serz
{

class XmlWriter
{
public:
    [[nodiscard]] static std::string write(const Document &doc, const XmlOptions &options);

    // The name as printed: "::" becomes "-", an empty name "e".
    [[nodiscard]] static std::string printedName(std::string_view stored);

private:
    XmlWriter(const Document &doc, const XmlOptions &options);

    void writeAll();
    void writeToken(std::size_t index);
    void writeOpen(const Token &token, bool empty);
    void writeValue(const Token &token);
    void writeArray(const Token &token);
    void writeBlob(const Token &token);
    void writeStoredNameMark(std::uint32_t name);
    void writeExactMark(const Token &token);
    void writeRecordMark(const Token &token);
    void indent();

    void eol() { m_out += m_eol; }

    const std::string &name(std::uint32_t index);
    const std::string &escaped(std::uint32_t index);
    bool needsStoredNameMark(std::uint32_t index) const;

    const Document &m_doc;
    const XmlOptions &m_options;
    std::string_view m_eol;
    std::string m_out;
    std::size_t m_depth = 0;
    bool m_rootWritten = false;
    bool m_anonymous = false; // lossless: "e" stands for an empty stored name
    std::vector<std::string> m_names;
    std::vector<std::string> m_escaped;
    std::vector<bool> m_nameDone;
    std::vector<bool> m_escapedDone;
};

} // namespace serz
