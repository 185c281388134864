#include "databases/Database.h"

#include "databases/Statement.h"
#include "support/FaultVfs.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace {

static_assert(!std::is_copy_constructible_v<zv::Database> && !std::is_copy_assignable_v<zv::Database>);
static_assert(!std::is_copy_constructible_v<zv::Statement> && !std::is_copy_assignable_v<zv::Statement>);

class DatabaseTest : public testing::Test {
protected:
    support::FaultVfs m_disk;
    support::TemporaryFolder m_folder;
    std::string m_path = m_folder.file("some.db");
};

TEST_F(DatabaseTest, ClosesItsFileAtTheEndOfItsScope) {
    {
        zv::Database database(m_path.c_str());
        EXPECT_TRUE(database.isOpen());
        EXPECT_TRUE(database.run("CREATE TABLE t (a, b)"));
        EXPECT_EQ(m_disk.openFiles(), 1);
    }
    EXPECT_EQ(m_disk.openFiles(), 0);
}

TEST_F(DatabaseTest, ReleasesItsHandleAlsoWhenTheOpenFailed) {
    sqlite3_int64 memory = sqlite3_memory_used();
    {
        zv::Database database(m_folder.file("missing/some.db").c_str());
        EXPECT_FALSE(database.isOpen());
        EXPECT_FALSE(database.run("CREATE TABLE t (a)"));
    }
    EXPECT_EQ(sqlite3_memory_used(), memory);
}

TEST_F(DatabaseTest, SaysWhetherAStatementRanToItsEnd) {
    zv::Database database(m_path.c_str());
    EXPECT_TRUE(database.run("CREATE TABLE t (a UNIQUE)"));
    EXPECT_FALSE(database.run("CREATE TABLE t (a)"));
    EXPECT_TRUE(database.run("INSERT INTO t VALUES (1)"));
    EXPECT_FALSE(database.run("INSERT INTO t VALUES (1)"));
    EXPECT_FALSE(database.run("DELETE FROM missing"));
    EXPECT_FALSE(database.run("no SQL"));
    EXPECT_FALSE(database.run("SELECT * FROM t"));
}

TEST_F(DatabaseTest, BindsAndReadsIntegersAndTexts) {
    zv::Database database(m_path.c_str());
    zv::Statement statement(database, "SELECT ?1, ?2, ?1 + 1, NULL, 'four', x'35'");
    statement.bind(1, 7);
    statement.bind(2, "seven");
    ASSERT_TRUE(statement.nextRow());
    EXPECT_EQ(statement.integer(0), 7);
    EXPECT_STREQ(statement.text(1), "seven");
    EXPECT_EQ(statement.integer(2), 8);
    EXPECT_EQ(statement.text(3), nullptr);
    EXPECT_EQ(statement.integer(3), 0);
    EXPECT_EQ(statement.integer(4), 0);
    EXPECT_STREQ(statement.text(5), "5");
    EXPECT_FALSE(statement.nextRow());
}

TEST_F(DatabaseTest, AStatementThatDidNotPrepareHasNoRowsAndCannotFinish) {
    zv::Database database(m_path.c_str());
    zv::Statement statement(database, "SELECT a FROM missing WHERE b = ? AND c = ?");
    EXPECT_FALSE(statement.isPrepared());
    statement.bind(1, 7);
    statement.bind(2, "seven");
    EXPECT_FALSE(statement.nextRow());
    EXPECT_FALSE(statement.finish());
}

TEST_F(DatabaseTest, AStatementThatStopsHalfWayIsFinalized) {
    sqlite3_int64 memory = sqlite3_memory_used();
    {
        zv::Database database(m_path.c_str());
        EXPECT_TRUE(database.run("CREATE TABLE t (a)"));
        EXPECT_TRUE(database.run("INSERT INTO t VALUES (1), (2)"));
        zv::Statement statement(database, "SELECT a FROM t");
        EXPECT_TRUE(statement.nextRow());
    }
    EXPECT_EQ(m_disk.openFiles(), 0);
    EXPECT_EQ(sqlite3_memory_used(), memory);
}

} // namespace
