// The passing report stays readable after its file is gone, and leaves nothing behind.
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include "desktop/text_viewer.h"
#include "tests/support/visit.h"

namespace navarun::test {

namespace {

class Viewer : public testing::Test {
  protected:
    TemporaryFolder folder;
    QString const reports = QString::fromStdString(folder.path().string());
    QString const report = reports + "/Marie Dupont.txt";
    QString const kept_in = reports + "/lectures";

    void write_report() {
        QFile file{report};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("\"MARIE DUPONT\"\r\n");
    }
};

TEST_F(Viewer, ATextTakenOverOutlivesItsFile) {
    desktop::TextViewer viewer{kept_in};
    write_report();
    QString const copy = viewer.take_over(report);
    QFile::remove(report);
    QFile shown{copy};
    ASSERT_TRUE(shown.open(QIODevice::ReadOnly));
    EXPECT_EQ(shown.readAll(), "\"MARIE DUPONT\"\r\n");
    EXPECT_TRUE(copy.endsWith("/Marie Dupont.txt"));
}

TEST_F(Viewer, TwoTextsOfOnePersonStandSideBySide) {
    desktop::TextViewer viewer{kept_in};
    write_report();
    EXPECT_NE(viewer.take_over(report), viewer.take_over(report));
}

TEST_F(Viewer, NobodyElseReadsThePrivateFolder) {
    desktop::TextViewer viewer{kept_in};
    write_report();
    viewer.take_over(report);
    auto const others = QFile::ReadGroup | QFile::ReadOther | QFile::ExeGroup | QFile::ExeOther;
    EXPECT_FALSE(QFile::permissions(kept_in) & others);
}

TEST_F(Viewer, TheEndEmptiesThePrivateFolder) {
    write_report();
    { desktop::TextViewer{kept_in}.take_over(report); }
    EXPECT_FALSE(QDir{kept_in}.exists());
}

TEST_F(Viewer, TheNextStartRemovesWhatAKilledRunLeft) {
    QDir{}.mkpath(kept_in + "/7");
    desktop::TextViewer const viewer{kept_in};
    EXPECT_FALSE(QDir{kept_in}.exists());
}

TEST_F(Viewer, AFileThatIsGoneIsTakenOverAsNothing) {
    desktop::TextViewer viewer{kept_in};
    EXPECT_EQ(viewer.take_over(report), QString{});
}

}  // namespace

}  // namespace navarun::test
