#include "records/edits.h"

#include "datafiles/record.h"

#include <utility>

namespace tarvold::records::edits {
namespace {

/// A line with the bytes that end it.
struct Piece
{
    QByteArrayView text;
    QByteArrayView end;
};

using Pieces = std::vector<Piece>;

Pieces piecesOf(const Record &record)
{
    Pieces pieces;
    pieces.reserve(record.lines().size());
    for (const Line &line : record.lines()) {
        pieces.push_back({line.text, endOf(record, int(pieces.size()))});
    }
    return pieces;
}

/// The bytes of all lines. A CR alone would become part of the end of an empty line behind it, if
/// an edit brought the two together; CR LF keeps them apart.
QByteArray bytesOf(Pieces pieces)
{
    for (auto place = pieces.size(); place-- > 1;) {
        const Piece &piece = pieces.at(place);
        const bool joins = piece.text.isEmpty() && (piece.end == "\n" || piece.end == kLineEnd);
        if (joins && pieces.at(place - 1).end == "\r") {
            pieces.at(place - 1).end = kLineEnd;
        }
    }
    QByteArray bytes;
    for (const Piece &piece : pieces) {
        bytes.append(piece.text).append(piece.end);
    }
    return bytes;
}

} // namespace

QByteArrayView endOf(const Record &record, int line)
{
    // The end that a line is read with stands for several: CR LF, but also what is taken for it.
    const std::vector<Line> &lines = record.lines();
    const auto next = std::size_t(line) + 1;
    const char *const begin = lines.at(std::size_t(line)).text.end();
    return {begin, next < lines.size() ? lines.at(next).text.begin() : record.bytes().constEnd()};
}

QByteArray withText(const Record &record, int line, QByteArrayView text)
{
    Pieces pieces = piecesOf(record);
    Piece &piece = pieces.at(std::size_t(line));
    piece.text = text;
    if (text.isEmpty() && piece.end.isEmpty()) {
        piece.end = kLineEnd; // else there would be no line
    }
    return bytesOf(std::move(pieces));
}

QByteArray withInserted(const Record &record, int line, const std::vector<QByteArray> &texts)
{
    Pieces pieces = piecesOf(record);
    if (line > 0 && pieces.at(std::size_t(line) - 1).end.isEmpty()) {
        pieces.at(std::size_t(line) - 1).end = kLineEnd; // else the new line would run into it
    }
    Pieces inserted;
    for (const QByteArray &text : texts) {
        inserted.push_back({text, kLineEnd});
    }
    pieces.insert(pieces.begin() + line, inserted.begin(), inserted.end());
    return bytesOf(std::move(pieces));
}

QByteArray withoutLines(const Record &record, int first, int last)
{
    Pieces pieces = piecesOf(record);
    pieces.erase(pieces.begin() + first, pieces.begin() + last + 1);
    return bytesOf(std::move(pieces));
}

QByteArray joinedText(const Record &record, int first, int last)
{
    QByteArray joined;
    for (int each = first; each <= last; ++each) {
        const QByteArrayView text = record.lines().at(std::size_t(each)).text;
        const bool needsBlank =
            !joined.isEmpty() && !text.isEmpty() && !joined.endsWith(' ') && !text.startsWith(' ');
        joined.append(needsBlank ? " " : "").append(text);
    }
    return joined;
}

QByteArray withJoined(const Record &record, int first, int last)
{
    const QByteArray joined = joinedText(record, first, last);
    Pieces pieces = piecesOf(record);
    pieces.at(std::size_t(last)).text = joined;
    pieces.erase(pieces.begin() + first, pieces.begin() + last);
    return bytesOf(std::move(pieces));
}

QByteArray withCrLf(const Record &record, const std::vector<int> &lines)
{
    Pieces pieces = piecesOf(record);
    for (const int line : lines) {
        pieces.at(std::size_t(line)).end = kLineEnd;
    }
    return bytesOf(std::move(pieces));
}

} // namespace tarvold::records::edits
