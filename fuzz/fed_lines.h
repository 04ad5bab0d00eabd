// Lines for the targets that read them as the command line does: through the standard input, as
// something else writes it piece by piece.
#pragma once

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <string>
#include <string_view>

#include "cli/standards/batch_output.h"
#include "exchange/line_source.h"

inline void require(bool holds) {
    if (!holds) std::abort();
}

/// How lines come in, from the first byte that the fuzzer makes: with few bytes a read, and behind
/// a line that fills half of the buffer, so that they are moved within it.
struct Feeding {
    explicit Feeding(unsigned char byte) : pieceSize(1 + byte % 32), isMoved(byte >= 128) {}
    /// The lines as they are fed.
    std::string lines(std::string_view text) const {
        return (isMoved ? std::string(halfBuffer, ' ') + '\n' : "") + std::string(text);
    }
    size_t pieceSize;
    bool isMoved;
    static constexpr size_t halfBuffer = size_t{128} << 10;
};

/// `text` on the standard input. Pieces are larger where a socket would not hold them all.
inline exchange::LineSource feedLines(std::string_view text, size_t pieceSize) {
    constexpr size_t mostPieces = 60;
    constexpr int bytesHeld = 1 << 18;
    const size_t piece = std::max(pieceSize, text.size() / mostPieces);
    int ends[2];
    require(::socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends) == 0);
    require(::setsockopt(ends[0], SOL_SOCKET, SO_SNDBUF, &bytesHeld, sizeof bytesHeld) == 0);
    while (!text.empty()) {
        const std::string_view part = text.substr(0, piece);
        require(::send(ends[0], part.data(), part.size(), MSG_DONTWAIT) >= 0);
        text.remove_prefix(part.size());
    }
    ::close(ends[0]);
    require(::dup2(ends[1], STDIN_FILENO) == STDIN_FILENO);
    ::close(ends[1]);
    std::string error;
    auto source = exchange::LineSource::open("-", error);
    require(source.has_value());
    return std::move(*source);
}

/// Variables of every type, all inputs or all outputs.
inline TwVarCells variablesOf(TwCellType kind) {
    TwVarCells cells;
    cells.append(TwVarCell("Section", kind, TwValueType::String));
    cells.append(TwVarCell("Thick", kind, TwValueType::Double));
    cells.append(TwVarCell("Bolts", kind, TwValueType::Int));
    return cells;
}

/// What a batch writes for outputs of the same values.
inline std::string writtenAsOutputs(const TwVarCells& inputs, bool jsonLines) {
    TwVarCells outputs = variablesOf(TwCellType::output);
    for (int i = 0; i < outputs.length(); ++i) outputs[i].typedValue() = inputs[i].typedValue();
    std::string text;
    cli::BatchOutput(jsonLines, text).writeOutputs(outputs);
    return text;
}
