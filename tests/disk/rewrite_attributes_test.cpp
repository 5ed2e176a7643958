// What a rewrite keeps of a file beside its content: owner, group, mode and extended attributes.

#include "disk/rewrite.h"
#include "support/folder_test.h"
#include "support/hindrances.h"

#include <QtEndian>

#include <cerrno>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <vector>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t kNobody = 65534;
constexpr uid_t kOwner = 4321;
constexpr gid_t kGroup = 1234;
constexpr char kFile[] = "a.tvd";
constexpr char kAccessList[] = "system.posix_acl_access";

/// One entry of an access control list, as acl(5) describes them.
struct Entry
{
    enum Tag : quint16 { Owner = 1, User = 2, OwningGroup = 4, Group = 8, Mask = 16, Others = 32 };
    Tag tag;
    quint16 permissions;
    quint32 user = ~0U;
};

QByteArray accessList(const std::vector<Entry> &entries)
{
    constexpr quint32 kVersion = 2;
    const auto put = [](auto number, QByteArray &bytes) {
        number = qToLittleEndian(number);
        bytes.append(reinterpret_cast<const char *>(&number), sizeof number);
    };
    QByteArray bytes;
    put(kVersion, bytes);
    for (const Entry &entry : entries) {
        put(quint16(entry.tag), bytes);
        put(entry.permissions, bytes);
        put(entry.user, bytes);
    }
    return bytes;
}

/// Read and write for one user beside the owner, and some permissions for the group.
QByteArray listFor(uid_t user, quint16 group, quint16 others = 0)
{
    return accessList({{Entry::Owner, 6},
                       {Entry::User, 6, user},
                       {Entry::OwningGroup, group},
                       {Entry::Mask, 7},
                       {Entry::Others, others}});
}

bool setAttribute(const char *file, const char *name, const QByteArray &value)
{
    return setxattr(file, name, value.constData(), std::size_t(value.size()), 0) == 0;
}

/// The value of an attribute, or "none".
QByteArray attributeOf(const char *file, const char *name)
{
    QByteArray value(1000, 0);
    const ssize_t size = getxattr(file, name, value.data(), std::size_t(value.size()));
    return size < 0 ? QByteArray("none") : value.first(size);
}

struct stat stateOf(const char *file)
{
    struct stat state = {};
    EXPECT_EQ(stat(file, &state), 0);
    return state;
}

/// Owner, group and mode as a text.
std::string permissionsOf(const char *file)
{
    const struct stat state = stateOf(file);
    return u"%1:%2 %3"_s.arg(state.st_uid)
        .arg(state.st_gid)
        .arg(state.st_mode & 07777U, 4, 8, QChar(u'0'))
        .toStdString();
}

class RewriteKeeps : public FolderTest
{
protected:
    RewriteKeeps()
    {
        chmod(".", 0777);
        writeFile(kFile, "old");
    }

    static bool rewrite() { return rewriteFile(QString::fromLatin1(kFile), "new").has_value(); }

    static void own(uid_t owner, gid_t group, mode_t mode)
    {
        ASSERT_EQ(chown(kFile, owner, group), 0);
        ASSERT_EQ(chmod(kFile, mode), 0);
    }

    static bool isSuperuser() { return geteuid() == 0; }
    static bool hasLists() { return setAttribute(kFile, kAccessList, listFor(kNobody, 4)); }
};

#define NEEDS(condition)                                                                           \
    if (!(condition)) {                                                                            \
        GTEST_SKIP() << "this user or file system does not allow it";                              \
    }

TEST_F(RewriteKeeps, OwnerAndGroupForTheSuperuser)
{
    NEEDS(isSuperuser())
    own(kOwner, kGroup, 0640);
    ASSERT_TRUE(rewrite());
    EXPECT_EQ(permissionsOf(kFile), "4321:1234 0640");
    EXPECT_EQ(readBack(kFile), "new");
}

TEST_F(RewriteKeeps, TheBitsOfAModeThatAChangeOfOwnerClears)
{
    NEEDS(isSuperuser())
    own(kOwner, kGroup, 06750);
    ASSERT_TRUE(rewrite());
    EXPECT_EQ(permissionsOf(kFile), "4321:1234 6750");
}

TEST_F(RewriteKeeps, AGroupThatTheUserIsAMemberOf)
{
    NEEDS(isSuperuser())
    own(kOwner, kGroup, 0660);
    EXPECT_TRUE(holdsForOrdinaryUser(rewrite, {kGroup}));
    EXPECT_EQ(permissionsOf(kFile), "65534:1234 0660");
    EXPECT_EQ(readBack(kFile), "new");
}

TEST_F(RewriteKeeps, OfAForeignGroupsPermissionsWhatEverybodyHad)
{
    NEEDS(isSuperuser())
    struct
    {
        mode_t old;
        const char *kept;
    } const samples[] = {{0646, "65534:65534 0644"},
                         {0676, "65534:65534 0666"},
                         {0606, "65534:65534 0600"},
                         {06666, "65534:65534 0666"}};
    for (const auto &sample : samples) {
        own(kOwner, kGroup, sample.old);
        EXPECT_TRUE(holdsForOrdinaryUser(rewrite));
        EXPECT_EQ(permissionsOf(kFile), sample.kept);
    }
}

TEST_F(RewriteKeeps, TheAccessControlList)
{
    NEEDS(hasLists())
    const QByteArray list = listFor(kNobody, 4);
    ASSERT_EQ(permissionsOf(kFile).substr(permissionsOf(kFile).size() - 4), "0670");
    const std::string permissions = permissionsOf(kFile);
    ASSERT_TRUE(rewrite());
    EXPECT_EQ(attributeOf(kFile, kAccessList), list);
    EXPECT_EQ(permissionsOf(kFile), permissions);
}

TEST_F(RewriteKeeps, TheAccessControlListOfAnotherOwner)
{
    NEEDS(isSuperuser() && hasLists())
    own(kOwner, kGroup, 06640);
    const QByteArray list = attributeOf(kFile, kAccessList);
    ASSERT_TRUE(rewrite());
    EXPECT_EQ(attributeOf(kFile, kAccessList), list);
    EXPECT_EQ(permissionsOf(kFile), "4321:1234 6640");
}

TEST_F(RewriteKeeps, OfAForeignGroupsListTheUsersThatItNames)
{
    NEEDS(isSuperuser() && hasLists())
    own(kOwner, kGroup, 0660);
    ASSERT_TRUE(setAttribute(kFile, kAccessList, listFor(kNobody, 7, 4)));
    EXPECT_TRUE(holdsForOrdinaryUser(rewrite));
    EXPECT_EQ(attributeOf(kFile, kAccessList), listFor(kNobody, 4, 4));
    EXPECT_EQ(permissionsOf(kFile), "65534:65534 0674");
}

TEST_F(RewriteKeeps, OfAForeignGroupsListNobodyInWhomANamedGroupKeepsOut)
{
    NEEDS(isSuperuser() && hasLists())
    const auto list = [](quint16 ofGroup) {
        constexpr quint32 kKeptOut = 2000;
        return accessList({{Entry::Owner, 6},
                           {Entry::User, 6, kNobody},
                           {Entry::OwningGroup, ofGroup},
                           {Entry::Group, 0, kKeptOut},
                           {Entry::Mask, 6},
                           {Entry::Others, 4}});
    };
    own(kOwner, kGroup, 0660);
    ASSERT_TRUE(setAttribute(kFile, kAccessList, list(4)));
    EXPECT_TRUE(holdsForOrdinaryUser(rewrite));
    EXPECT_EQ(attributeOf(kFile, kAccessList), list(0));
}

TEST_F(RewriteKeeps, AFileWithoutAListEvenIfItsFolderGivesOne)
{
    NEEDS(setAttribute(".", "system.posix_acl_default", listFor(kNobody, 6, 4)))
    ASSERT_EQ(chmod(kFile, 0660), 0);
    ASSERT_EQ(attributeOf(kFile, kAccessList), "none");
    ASSERT_TRUE(rewrite());
    EXPECT_EQ(attributeOf(kFile, kAccessList), "none");
    EXPECT_EQ(stateOf(kFile).st_mode & 07777U, 0660U);
}

TEST_F(RewriteKeeps, AttributesOfUsers)
{
    NEEDS(setAttribute(kFile, "user.note", "by hand"))
    ASSERT_EQ(chmod(kFile, 0666), 0);
    ASSERT_TRUE(setAttribute(kFile, "user.empty", ""));
    EXPECT_TRUE(holdsForOrdinaryUser(rewrite));
    EXPECT_EQ(readBack(kFile), "new");
    EXPECT_EQ(attributeOf(kFile, "user.note"), "by hand");
    EXPECT_EQ(attributeOf(kFile, "user.empty"), "");
}

TEST_F(RewriteKeeps, AttributesOfTheSystemForTheSuperuserAlone)
{
    NEEDS(isSuperuser() && setAttribute(kFile, "trusted.note", "one") &&
          setAttribute(kFile, "security.note", "two"))
    ASSERT_EQ(chmod(kFile, 0666), 0);
    ASSERT_TRUE(rewrite());
    EXPECT_EQ(attributeOf(kFile, "trusted.note"), "one");
    EXPECT_EQ(attributeOf(kFile, "security.note"), "two");
    EXPECT_TRUE(holdsForOrdinaryUser(rewrite));
    EXPECT_EQ(attributeOf(kFile, "security.note"), "none");
}

TEST_F(RewriteKeeps, TheUsualModeForAFileThatWasNotThere)
{
    const mode_t old = umask(027);
    const auto saved = rewriteFile(u"new.tvd"_s, "new");
    umask(old);
    ASSERT_TRUE(saved);
    EXPECT_EQ(stateOf("new.tvd").st_mode & 07777U, 0640U);
    EXPECT_EQ(folderContent(), "a.tvd new.tvd");
}

#undef NEEDS

} // namespace
} // namespace tarvold::testing
