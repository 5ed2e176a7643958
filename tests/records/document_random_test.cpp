// Random changes, undo, redo, saves and reloads against plain lists of byte strings.

#include "document_test.h"

#include <algorithm>

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;

/// What the records of a document should be: without those that are deleted.
using Plain = QByteArrayList;

class DocumentAtRandom : public DocumentTest
{
protected:
    int below(int bound) { return records::below(m_random, bound); }

    QByteArray randomRecord()
    {
        // Few different ones, so that equal ones meet.
        QByteArray record = talkShow("Host " + QByteArray::number(below(5)));
        if (!m_isMixed) {
            return record;
        }
        if (below(2) == 0) {
            record.remove(0, record.indexOf('\r')); // its first line is empty
        }
        if (below(3) == 0) {
            record.replace("\r\n", "\n");
        }
        constexpr const char *kEnds[] = {"\r\n", "\n", "\r", "\r"};
        record.chop(record.endsWith("\r\n") ? 2 : 1);
        return record + kEnds[below(4)];
    }

    void SetUp() override {}

    /// \param isMixed whether the lines end in several ways, and some records begin with an empty
    /// one
    void start(unsigned seed, bool isMixed)
    {
        m_random.seed(seed);
        m_isMixed = isMixed;
        QByteArray bytes;
        for (int count = 1 + below(6); count > 0; --count) {
            bytes += randomRecord();
        }
        writeFile(kFile, below(2) == 0 ? bytes : bytes.chopped(2));
        open();
        m_disk = plain();
        m_history = {m_disk};
        m_place = 0;
        m_saved = 0;
    }

    /// The records that a save would write.
    Plain plain() const
    {
        Plain all;
        for (int index = 0; index < document.count(); ++index) {
            if (!document.entry(index).isDeleted) {
                all.append(QByteArrayView(document.entry(index).bytes).toByteArray());
            }
        }
        return all;
    }

    int place(int index) const
    {
        int count = 0;
        for (int before = 0; before < index; ++before) {
            count += document.entry(before).isDeleted ? 0 : 1;
        }
        return count;
    }

    /// Makes a change to the document and tells what should come of it.
    Plain change()
    {
        Plain wanted = plain();
        const int index = below(document.count());
        const bool isDeleted = document.entry(index).isDeleted;
        const QByteArray bytes = document.entry(index).bytes;
        const int at = place(index);
        switch (below(6)) {
        case 0: {
            const QByteArray other = randomRecord();
            document.replace(index, other, u"Edit"_s);
            if (!isDeleted) {
                wanted[at] = other;
            }
            break;
        }
        case 1:
            document.remove({index});
            if (!isDeleted) {
                wanted.removeAt(at);
            }
            break;
        case 2:
            document.restore({index});
            if (isDeleted) {
                wanted.insert(at, bytes);
            }
            break;
        case 3:
            document.duplicate(index);
            wanted.insert(isDeleted ? at : at + 1, bytes);
            break;
        default:
            moveInBoth(index, below(2) == 0 ? 1 : -1, wanted);
        }
        return wanted;
    }

    void moveInBoth(int index, int by, Plain &wanted)
    {
        const int to = index + by;
        const bool isSwap = to >= 0 && to < document.count() && !document.entry(index).isDeleted &&
                            !document.entry(to).isDeleted;
        const int at = place(index);
        document.move(index, by);
        if (isSwap) {
            wanted.swapItemsAt(at, at + by);
        }
    }

    void step()
    {
        const int what = below(20);
        if (what < 4 && m_place > 0) {
            undo();
            --m_place;
        } else if (what < 7 && m_place + 1 < int(m_history.size())) {
            redo();
            ++m_place;
        } else if (what == 7) {
            ASSERT_TRUE(document.save({}));
            m_disk = m_history.at(m_place);
            m_saved = m_place;
        } else if (what == 8 && below(4) == 0) {
            ASSERT_TRUE(document.reload());
            m_disk = plain(); // odd lines may be divided into records in another way
            m_history = {m_disk};
            m_place = 0;
            m_saved = 0;
        } else if (document.count() > 0) {
            noteChange(change());
        }
    }

    void noteChange(const Plain &wanted)
    {
        ASSERT_EQ(ended(plain()), ended(wanted));
        if (document.undoStack().index() == m_place) {
            return; // it changed nothing
        }
        m_saved = m_saved > m_place ? -1 : m_saved;
        m_history.resize(++m_place);
        m_history.append(plain());
    }

    /// Only the last record may lack its line end, and which one that is may have changed. A lone
    /// CR would make one line end with the empty line behind it.
    static Plain ended(Plain records)
    {
        std::transform(records.begin(), records.end(), records.begin(), records::ended);
        for (qsizetype place = records.size() - 1; place > 0; --place) {
            const bool joins = records[place].startsWith('\n') || records[place].startsWith("\r\n");
            records[place - 1] += joins && records[place - 1].endsWith('\r') ? "\n" : "";
        }
        return records;
    }

    /// Whether the file would be read as the lines that the records have by themselves.
    static bool isReadAsShown(const Plain &records)
    {
        const QByteArray all = records.join();
        std::vector<records::Line> lines;
        for (const QByteArray &record : records) {
            const std::vector<records::Line> own = records::linesOf(record);
            lines.insert(lines.end(), own.begin(), own.end());
        }
        return records::linesOf(all) == lines;
    }

    void check()
    {
        ASSERT_EQ(plain(), m_history.at(m_place));
        ASSERT_EQ(document.isChanged(), m_place != m_saved);
        ASSERT_EQ(readBack(kFile), m_disk.join());
        for (int record = 0; record + 1 < plain().size(); ++record) {
            ASSERT_TRUE(records::isEnded(plain().at(record)));
        }
        ASSERT_TRUE(isReadAsShown(plain()));
        bool isUnchanged = document.count() == m_disk.size();
        for (int index = 0; index < document.count(); ++index) {
            isUnchanged = isUnchanged && document.stateOf(index) == EntryState::Unchanged;
        }
        ASSERT_TRUE(!isUnchanged || plain() == m_disk) << shown();
    }

private:
    records::Random m_random;
    bool m_isMixed = false;
    Plain m_disk;           ///< what the file holds
    QList<Plain> m_history; ///< after each step that can be undone
    int m_place = 0;        ///< the step that the document is at
    int m_saved = 0;        ///< the step that was saved; -1: none that can be reached
};

TEST_F(DocumentAtRandom, IsWhatPlainListsAre)
{
    for (unsigned seed = 1; seed <= 600; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        start(seed, seed % 2 == 0);
        for (int count = 0; count < 60 && !HasFatalFailure(); ++count) {
            SCOPED_TRACE("step " + std::to_string(count));
            step();
            check();
        }
        if (HasFatalFailure()) {
            return;
        }
    }
}

} // namespace
} // namespace tarvold::testing
