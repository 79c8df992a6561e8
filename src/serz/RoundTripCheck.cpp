#include "serz/RoundTripCheck.h"

#include "serz/BinaryReader.h"
#include "serz/BinaryWriter.h"
#include "serz/DocumentCompare.h"
#include "serz/NumberText.h"
#include "serz/XmlReader.h"
#include "serz/XmlWriter.h"

#include <algorithm>
#include <cstring>

namespace serz
{
namespace
{

void countLosses(const Document &doc, RoundTripReport &report)
{
    std::string text;
    for (const Token &token : doc.tokens) {
        if (token.kind == Kind::Record) {
            ++report.records;
        } else if (token.kind == Kind::Array && isFloat(token.type)) {
            for (std::size_t i = 0; i < token.count; ++i) {
                const std::uint64_t bits = doc.values[token.first + i];
                text.clear();
                appendFixedFloat(text, floatValue(token.type, bits));
                report.roundedFloats += parseFloat(token.type, text) != bits ? 1U : 0U;
            }
        }
        if (token.kind == Kind::Open || token.kind == Kind::Value || token.kind == Kind::Array
            || token.kind == Kind::Ref) {
            const std::string &name = doc.text(token.name);
            report.emptyNames += name.empty() ? 1U : 0U;
            report.dashedNames += name.find('-') != std::string::npos ? 1U : 0U;
        }
        if (token.kind == Kind::Value && token.type == ValueType::String) {
            const std::string &value =
                doc.text(static_cast<std::uint32_t>(doc.values[token.first]));
            report.carriageReturns += value.find('\r') != std::string::npos ? 1U : 0U;
        }
    }
}

void appendCount(std::string &out, std::size_t count, const char *what)
{
    if (count > 0) {
        out += out.back() == ' ' ? "" : ", ";
        out += std::to_string(count) + " " + what;
    }
}

} // namespace

std::string RoundTripReport::summary() const
{
    std::string out = stable ? "stable through XML" : "NOT stable through XML";
    if (losslessSame) {
        out += "; lossless: byte-identical";
    } else if (contentSame) {
        out += "; lossless: same content, line cache differs";
    } else {
        out += "; lossless: DIFFERENT";
    }
    std::string losses = "plain XML loses ";
    appendCount(losses, records, "record tokens");
    appendCount(losses, roundedFloats, "rounded array values");
    appendCount(losses, emptyNames, "empty names");
    appendCount(losses, dashedNames, "names with '-'");
    appendCount(losses, carriageReturns, "strings with CR");
    if (losses.back() != ' ') {
        out += "; " + losses;
    }
    return out;
}

Result<RoundTripReport> checkRoundTrip(std::span<const std::byte> bin)
{
    auto original = BinaryReader::read(bin);
    if (!original) {
        return original.error();
    }
    RoundTripReport report;
    countLosses(original.value(), report);

    const std::string plain = XmlWriter::write(original.value(), XmlOptions{});
    const auto plainDoc = XmlReader::read(plain, BinOptions{});
    if (plainDoc) {
        const auto again = BinaryWriter::write(plainDoc.value());
        if (again) {
            const auto secondDoc = BinaryReader::read(again.value());
            report.stable = secondDoc && XmlWriter::write(secondDoc.value(), XmlOptions{}) == plain;
        }
    }

    const std::string lossless = XmlWriter::write(original.value(), XmlOptions{.lossless = true});
    const auto losslessDoc = XmlReader::read(lossless, BinOptions{});
    if (losslessDoc) {
        const auto back = BinaryWriter::write(losslessDoc.value());
        report.losslessSame = back && back.value().size() == bin.size()
            && std::memcmp(back.value().data(), bin.data(), bin.size()) == 0;
        report.contentSame =
            report.losslessSame || sameContent(original.value(), losslessDoc.value());
    }
    return report;
}

} // namespace serz
