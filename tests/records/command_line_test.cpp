#include "records/command_line.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using records::commandline::Command;

namespace {

Command commandOf(const QStringList &arguments)
{
    return records::commandline::read(QStringList{u"tarvold-records"_s} + arguments);
}

TEST(CommandLine, WithoutOptionsWindowsAreOpened)
{
    EXPECT_EQ(commandOf({}).action, Command::Action::Open);
    const Command files = commandOf({u"a.tvd"_s, u"--"_s, u"--check"_s});
    EXPECT_EQ(files.action, Command::Action::Open);
    EXPECT_EQ(files.files, (QStringList{u"a.tvd"_s, u"--check"_s}));
    EXPECT_EQ(files.kind, std::nullopt);
    EXPECT_EQ(records::commandline::runWithoutWindow(files), std::nullopt);
}

TEST(CommandLine, TheKindGoesWithAnyUse)
{
    EXPECT_EQ(commandOf({u"--kind"_s, u"turns"_s, u"a.tvd"_s}).kind, DataFileKind::TurnEndings);
    const Command check = commandOf({u"--check"_s, u"a.tvd"_s, u"--kind=interview"_s});
    EXPECT_EQ(check.action, Command::Action::Check);
    EXPECT_EQ(check.files, QStringList{u"a.tvd"_s});
    EXPECT_EQ(check.kind, DataFileKind::Interviews);
}

TEST(CommandLine, OptionsOfQtPass)
{
    const QStringList others[] = {{u"-platform"_s, u"offscreen"_s},
                                  {u"--platform"_s, u"offscreen"_s},
                                  {u"-style=fusion"_s},
                                  {u"-style"_s, u"fusion"_s},
                                  {u"-reverse"_s},
                                  {u"-display"_s, u":0"_s, u"-name"_s, u"x"_s}};
    for (const QStringList &other : others) {
        SCOPED_TRACE(other.join(u' ').toStdString());
        for (const QStringList &all :
             {other + QStringList{u"a.tvd"_s}, QStringList{u"a.tvd"_s} + other}) {
            const Command command = commandOf(all);
            EXPECT_EQ(command.action, Command::Action::Open) << command.text.toStdString();
            EXPECT_EQ(command.files, QStringList{u"a.tvd"_s});
        }
    }
    EXPECT_EQ(commandOf({u"--"_s, u"-reverse"_s}).files, QStringList{u"-reverse"_s});
    EXPECT_EQ(commandOf({u"-platform"_s}).action, Command::Action::Fail);
}

TEST(CommandLine, MistakesAreTold)
{
    const QStringList mistakes[] = {
        {u"--check"_s}, {u"--unknown"_s}, {u"--kind"_s}, {u"--kind"_s, u"none"_s, u"a.tvd"_s}};
    for (const QStringList &mistake : mistakes) {
        const Command command = commandOf(mistake);
        EXPECT_EQ(command.action, Command::Action::Fail) << mistake.join(u' ').toStdString();
        EXPECT_TRUE(command.text.endsWith(u"\nSee tarvold-records --help."_s));
        EXPECT_GT(command.text.indexOf(u'\n'), 5);
    }
}

} // namespace
} // namespace tarvold::testing
