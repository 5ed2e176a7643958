#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <map>
#include <utility>
#include <vector>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

/// What ten lines must do, in the plainest form: each has a list of steps, some of them undone.
class PlainLines
{
public:
    static constexpr int kCount = 10;

    QString text(int line) const
    {
        const History &history = m_lines.at(std::size_t(line));
        return history.done == 0 ? QString() : history.steps.at(history.done - 1).text;
    }

    QStringList texts() const
    {
        QStringList all;
        for (int line = 0; line < kCount; ++line) {
            all << text(line);
        }
        return all;
    }

    void type(int line, const QString &word) { insert(line, text(line).size(), word); }

    void insert(int line, qsizetype at, const QString &word)
    {
        edit({{line, text(line).insert(at, word)}}, false);
    }

    void swap(int line, int other)
    {
        if (text(line) != text(other)) {
            edit({{line, text(other)}, {other, text(line)}}, true);
        }
    }

    void paste(int line, qsizetype at, QStringList pasted)
    {
        qsizetype room = 1;
        while (line + room < kCount && text(line + int(room)).isEmpty()) {
            ++room;
        }
        if (pasted.size() > room) {
            pasted = pasted.first(room - 1) << pasted.sliced(room - 1).join(u' ');
        }
        const QString behind = text(line).sliced(at);
        pasted.front().prepend(text(line).first(at));
        pasted.back() += behind;
        std::vector<std::pair<int, QString>> changes;
        for (int below = 0; below < pasted.size(); ++below) {
            changes.emplace_back(line + below, pasted[below]);
        }
        edit(changes, !behind.isEmpty() && pasted.size() > 1);
    }

    void undo(int line)
    {
        go(
            line,
            [](const History &history) {
                return history.done == 0 ? 0 : history.steps.at(history.done - 1).edit;
            },
            [](History &history) { --history.done; });
    }

    void redo(int line)
    {
        go(
            line,
            [](const History &history) {
                return history.done == history.steps.size() ? 0
                                                            : history.steps.at(history.done).edit;
            },
            [](History &history) { ++history.done; });
    }

private:
    struct Step
    {
        int edit;
        QString text; ///< after it
    };

    struct History
    {
        std::vector<Step> steps;
        std::size_t done = 0;
    };

    struct Edit
    {
        std::vector<int> lines;
        bool isWhole;
    };

    void edit(const std::vector<std::pair<int, QString>> &changes, bool isWhole)
    {
        const int number = static_cast<int>(m_edits.size()) + 1;
        Edit &edit = m_edits[number];
        edit.isWhole = isWhole;
        for (const auto &[line, text] : changes) {
            History &history = m_lines.at(std::size_t(line));
            history.steps.resize(history.done);
            history.steps.push_back({number, text});
            ++history.done;
            edit.lines.push_back(line);
        }
    }

    template <class Next, class Pass>
    void go(int line, const Next &next, const Pass &pass)
    {
        const int number = next(m_lines.at(std::size_t(line)));
        if (number == 0) {
            return;
        }
        const Edit &edit = m_edits.at(number);
        std::vector<int> along;
        for (const int each : edit.lines) {
            const bool isBound = each == line || edit.isWhole || edit.lines.front() == line;
            if (isBound && next(m_lines.at(std::size_t(each))) == number) {
                along.push_back(each);
            }
        }
        if (edit.isWhole && along.size() < edit.lines.size()) {
            return;
        }
        for (const int each : along) {
            pass(m_lines.at(std::size_t(each)));
        }
    }

    std::array<History, kCount> m_lines;
    std::map<int, Edit> m_edits;
};

} // namespace tarvold::testing
