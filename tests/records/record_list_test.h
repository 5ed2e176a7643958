#pragma once

#include "document_test.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"

#include <QAbstractItemModelTester>
#include <QTest>

namespace tarvold::testing {

using records::ProblemScan;
using records::RecordListModel;

/// A talk show with a problem.
inline QByteArray damaged(const QByteArray &host)
{
    return talkShow(host).replace("\r\n", "\n");
}

/// A test with the list of a document, which Qt's own tester watches.
class RecordListTest : public DocumentTest
{
protected:
    RecordListTest() { scan.stop(); }

    /// Loads a file with these records and waits until it is searched for problems.
    void load(const QByteArrayList &all)
    {
        writeFile(kFile, all.join());
        open();
        waitForScan();
    }

    void waitForScan()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !scan.isRunning(); }));
        QCoreApplication::processEvents();
    }

    void waitForSearch()
    {
        ASSERT_TRUE(QTest::qWaitFor([this] { return !list.isSearching(); }));
    }

    QString textAt(int row, int column) const { return list.index(row, column).data().toString(); }

    /// The numbers of the records in the list, in its order.
    std::string numbers() const
    {
        QStringList texts;
        for (int row = 0; row < list.rowCount(); ++row) {
            texts.append(textAt(row, RecordListModel::Number));
        }
        return texts.join(u' ').toStdString();
    }

    ProblemScan scan{document};
    RecordListModel list{document, scan};

private:
    QAbstractItemModelTester m_tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

} // namespace tarvold::testing
