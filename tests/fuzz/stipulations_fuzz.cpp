// The table of stipulations on any file, changed step by step, compared with a plain flat list.

#include "datafiles/slow_merge.h"
#include "datafiles/stipulation_table.h"
#include "fuzz/flat_list.h"
#include "fuzz/fuzz_input.h"

namespace tarvold::testing {
namespace {

constexpr int kLines = StipulationTable::kLinesPerRecord;

/// A table, the flat list that it has to equal, and the file of both.
class TableAndList
{
public:
    explicit TableAndList(FuzzInput input) : m_input(input) {}

    void run()
    {
        const bool whole = !m_input.onceIn(3);
        const QByteArray bytes =
            whole ? wholeRecords(m_input.bytes(), kLines) : m_input.bytes().toByteArray();
        putInMemory(m_file, bytes);
        load(bytes);
        compareLists();
        writeBack(); // what nobody touched, or over what is no table
        while (!m_input.atEnd()) {
            step();
            compareLines();
        }
        compareLists();
        if (!m_isKnown || m_saved != m_list.file()) {
            writeBack();
        }
        require(filesInMemory() == "a.tvd", "there is no file but the one of the table");
    }

private:
    void load(const QByteArray &bytes)
    {
        FlatList list(bytes);
        const auto loaded = m_table.load(m_file);
        require(loaded.has_value() == list.isWhole(), "whole records are loaded, and only they");
        if (!loaded) {
            m_isKnown = m_isKnown && bytes == m_saved;
            return;
        }
        m_list = std::move(list);
        m_saved = bytes;
        m_isKnown = true;
    }

    /// Writes back to a file that the table knows, or over one that it does not, which it refuses
    /// first.
    void writeBack()
    {
        const QByteArray bytes = m_list.file();
        if (!m_isKnown) {
            const auto before = bytesIfThere(m_file);
            const auto refused = m_table.writeBack(m_file);
            require(!refused && refused.error().outcome == FileOutcome::ChangedByAnother,
                    "a file that another program changed is not lost");
            require(bytesIfThere(m_file) == before, "a refused file is as it was");
        }
        const auto mayOverwrite = [this] {
            require(!m_isKnown, "nobody is asked about a file that the table knows");
            return true;
        };
        require(m_table.writeBack(m_file, mayOverwrite).has_value(),
                "the table can be written back");
        require(bytesIfThere(m_file) == bytes, "the file holds all lines and nothing else");
        m_saved = bytes;
        m_isKnown = true;
    }

    void changeFromOutside()
    {
        const QByteArray other = m_list.line(0).toByteArray();
        putInMemory(m_file, other);
        m_isKnown = other == m_saved;
    }

    void step()
    {
        switch (m_input.below(8)) {
        case 0:
            append();
            break;
        case 1:
        case 2:
            replace();
            break;
        case 3:
        case 4:
            remove();
            break;
        case 5:
            goBack();
            break;
        case 6:
            changeFromOutside();
            break;
        default:
            writeBack();
            load(m_list.file());
            break;
        }
    }

    void append()
    {
        const StipulationTable::Record stored = record();
        m_table.append(stored);
        m_list.append(stored);
    }

    void replace()
    {
        if (const auto index = place()) {
            const StipulationTable::Record stored = record();
            m_table.replace(*index, stored);
            m_list.replace(*index, stored);
        }
    }

    void remove()
    {
        if (const auto index = place()) {
            m_table.remove(*index);
            m_list.remove(*index);
        }
    }

    void goBack()
    {
        if (const auto index = place()) {
            const StipulationTable before = m_table;
            m_table.append(record());
            m_table.remove(*index);
            m_table.replace(*index, record());
            m_table = before;
        }
    }

    /// A place as the screens know them: where the stipulation of an entry of the list is found.
    /// An empty list has none, and an entry that no list shows is found nowhere.
    std::optional<int> place()
    {
        const int index = m_input.below(1 + m_list.size() / kLines) * kLines;
        const QByteArray entry = m_list.entry(index);
        const std::vector<int> found = m_table.find(entry);
        require(found == m_list.find(entry), "an entry is found where the list has it");
        if (index >= m_list.size()) {
            return std::nullopt;
        }
        require(!found.empty() && found.back() < m_table.lineCount(), "a place is in the table");
        return found.back();
    }

    /// A record of lines that the table knows already, of none and of new ones.
    StipulationTable::Record record()
    {
        const int pattern = m_input.below(256);
        StipulationTable::Record made;
        for (int offset = 0; offset < kLines; ++offset) {
            made.at(std::size_t(offset)) = line((pattern >> (2 * (offset % 4))) % 4);
        }
        return made;
    }

    std::optional<QByteArray> line(int choice) const
    {
        switch (choice) {
        case 0:
            return std::nullopt;
        case 1:
            return QByteArray();
        case 2:
            return m_list.line(1).toByteArray();
        default:
            return "new";
        }
    }

    void compareLines()
    {
        require(m_table.lineCount() == m_list.size(), "there are as many lines as in the list");
        for (int index = 0; index < m_list.size() + 2; ++index) {
            require(m_table.line(index) == m_list.line(index), "every line is that of the list");
        }
    }

    void compareLists()
    {
        compareLines();
        require(m_table.allRecords() == m_list.records(), "records are at every 19th line");
        require(m_table.namedRecords() == m_list.namedRecords(),
                "the list shows what has a first line");
        for (const int index : m_list.records()) {
            require(m_table.displayText(index) == m_list.entry(index), "entries are the same");
        }
        for (int index = 0; index < 4; ++index) {
            require(m_table.countKey(m_list.line(index), m_list.line(index + 1), 0) ==
                        m_list.countKey(m_list.line(index), m_list.line(index + 1), 0),
                    "a key is counted at every place");
        }
    }

    FuzzInput m_input;
    QString m_file = pathInMemory("a.tvd");
    StipulationTable m_table;
    FlatList m_list{{}};
    QByteArray m_saved;    ///< what the table has last read or written
    bool m_isKnown = true; ///< whether the file still holds that
};

} // namespace
} // namespace tarvold::testing

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    using namespace tarvold::testing;
    TableAndList(FuzzInput({data, qsizetype(size)})).run();
    return 0;
}
