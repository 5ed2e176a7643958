// The list beside a plain one while a document changes at random.

#include "record_list_test.h"

#include <algorithm>

namespace tarvold::testing {
namespace {

using namespace Qt::StringLiterals;

class ListAtRandom : public RecordListTest
{
protected:
    int below(int bound) { return records::below(m_random, bound); }

    QByteArray randomRecord()
    {
        const QByteArray host = "Host " + QByteArray::number(below(30));
        return below(4) == 0 ? damaged(host) : talkShow(host);
    }

    void changeDocument()
    {
        const int index = below(document.count());
        switch (below(9)) {
        case 0:
            return document.replace(index, randomRecord(), u"Edit"_s);
        case 1:
            return document.remove({index, below(document.count())});
        case 2:
            return document.restore({index});
        case 3:
            return document.duplicate(index);
        case 4:
            return document.move(index, below(2) == 0 ? 1 : -1);
        case 5:
            ASSERT_TRUE(document.save({}));
            return;
        case 6:
            return redo();
        default:
            return undo();
        }
    }

    void changeList()
    {
        switch (below(6)) {
        case 0:
            m_wanted = below(2) == 0 ? QString() : u"host %1"_s.arg(below(3));
            return list.setSearch(m_wanted);
        case 1:
            m_isOnlyProblems = below(2) == 0;
            return list.setOnlyProblems(m_isOnlyProblems);
        case 2:
            return list.sort(below(list.columnCount() + 1) - 1,
                             below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
        default:
            const int index = below(document.count() + 1) - 1;
            m_chosen = index < 0 ? -1 : document.entry(index).id;
            return list.setChosen(index);
        }
    }

    /// Every record that should be shown is, once, and no other but the one that is kept.
    void check()
    {
        const records::SearchText wanted(m_wanted, DataFileKind::TalkShows);
        std::vector<int> rows;
        for (int row = 0; row < list.rowCount(); ++row) {
            rows.push_back(list.indexAt(row));
            ASSERT_EQ(list.rowOf(rows.back()), row);
        }
        std::sort(rows.begin(), rows.end());
        ASSERT_EQ(std::adjacent_find(rows.begin(), rows.end()), rows.end());
        int problems = 0;
        for (int index = 0; index < document.count(); ++index) {
            const bool isShown = std::binary_search(rows.begin(), rows.end(), index);
            const bool isDamaged = !scan.problemsAt(index).empty();
            const bool isWanted =
                wanted.isIn(document.entry(index).bytes) &&
                (isDamaged || document.entry(index).isDeleted || !m_isOnlyProblems);
            problems += isDamaged ? 1 : 0;
            ASSERT_EQ(scan.countAt(index), int(scan.problemsAt(index).size())) << index;
            ASSERT_TRUE(isShown == isWanted || (isShown && document.entry(index).id == m_chosen))
                << index;
        }
        ASSERT_EQ(scan.total(), problems);
    }

    /// Changes the list or the document, and checks the list now and then.
    void takeStep()
    {
        below(3) == 0 ? changeList() : changeDocument();
        if (below(3) == 0) {
            QCoreApplication::processEvents();
        }
        if (below(5) == 0) {
            waitForScan();
            waitForSearch();
            check();
        }
    }

    records::Random m_random;
    QString m_wanted;
    bool m_isOnlyProblems = false;
    int m_chosen = -1; ///< the id of a record
};

TEST_F(ListAtRandom, ShowsWhatItShould)
{
    for (unsigned seed = 1; seed <= 60 && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        m_random.seed(seed);
        QByteArrayList all;
        for (int count = 1 + below(40); count > 0; --count) {
            all.append(randomRecord());
        }
        load(all);
        for (int step = 0; step < 80 && !HasFatalFailure() && document.count() > 0; ++step) {
            SCOPED_TRACE("step " + std::to_string(step));
            takeStep();
        }
    }
}

} // namespace
} // namespace tarvold::testing
