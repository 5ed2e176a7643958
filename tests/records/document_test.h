#pragma once

#include "random_records.h"
#include "records/document.h"
#include "support/folder_test.h"

#include <string>
#include <vector>

namespace tarvold::testing {

using records::Document;
using records::EntryState;

/// A record of a talk show that is known by its host.
inline QByteArray talkShow(const QByteArray &host)
{
    records::Random random(1);
    const auto &catalog = records::Catalog::of(DataFileKind::TalkShows);
    records::RecordLines lines = records::randomRecord(random, catalog, records::Writing::Default);
    lines.first() = host;
    return records::bytesOf(lines);
}

/// A test with a file of three talk shows, loaded into a document.
class DocumentTest : public FolderTest
{
protected:
    void SetUp() override
    {
        writeFile(kFile, one + two + three);
        open();
    }

    void open() { ASSERT_TRUE(document.open(QString::fromLatin1(kFile), DataFileKind::TalkShows)); }

    /// All bytes that a save would write.
    QByteArray content() const
    {
        QByteArray bytes;
        for (int index = 0; index < document.count(); ++index) {
            bytes += document.entry(index).isDeleted ? QByteArray() : document.entry(index).bytes;
        }
        return bytes;
    }

    /// The hosts of all records, in their order, each with the letter of its state if it changed.
    std::string shown() const
    {
        QByteArrayList texts;
        for (int index = 0; index < document.count(); ++index) {
            const QByteArray &bytes = document.entry(index).bytes;
            texts.append(bytes.first(bytes.indexOf('\r')) + letterOf(document.stateOf(index)));
        }
        return texts.join(' ').toStdString();
    }

    void undo() { document.undoStack().undo(); }
    void redo() { document.undoStack().redo(); }
    int steps() { return document.undoStack().count(); }

    static constexpr char kFile[] = "talkshow.tvd";
    const QByteArray one = talkShow("One");
    const QByteArray two = talkShow("Two");
    const QByteArray three = talkShow("Three");
    Document document;

private:
    static QByteArray letterOf(EntryState state)
    {
        return QByteArray(state == EntryState::Edited    ? ":E"
                          : state == EntryState::Added   ? ":A"
                          : state == EntryState::Moved   ? ":M"
                          : state == EntryState::Deleted ? ":D"
                                                         : "");
    }
};

} // namespace tarvold::testing
