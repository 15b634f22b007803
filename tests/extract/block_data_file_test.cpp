#include "extract/block_data_file.h"

#include "tests/extract/extract_world.h"

namespace extract {
namespace {

struct TableForm : forms::Form {
    TableForm() : Form("fmTable", "", "Table") {}
    forms::ListView table{*this, "ListView1"};
};

class BlockDataFileTest : public testing::Test, public fakes::SessionWorld {
  protected:
    std::vector<Fields> read(const std::string& bytes) {
        BlockDataReader reader(folder.write("in.txt", bytes));
        std::vector<Fields> lines;
        while (reader.next()) lines.push_back(reader.fields());
        return lines;
    }
    std::string written(const std::string& name) {
        writeBlockData(folder.file("out.txt"), name, view.table);
        return folder.read("out.txt");
    }
    TableForm view;
    const std::string title =
        "Donn\xE9"
        "es du bloc \t";
};

TEST_F(BlockDataFileTest, WritesTitleColumnsAndRowsInTheCodePage) {
    EXPECT_EQ(written("Chêne"), title + "Ch\xEAne\r\n\r\n") << "no header, an empty line";
    for (const char* header : {"N°", "A", "B"}) view.table.columnHeaders().add(header, 400);
    view.table.listItems().add("1").setSubItem(1, "x\ty");
    view.table.listItems().add("2").setSubItem(2, "\u4E2D");
    EXPECT_EQ(written(""), title + "\r\nN\xB0\tA\tB\r\n1\tx\ty\t\r\n2\t\t?\r\n");
}

TEST_F(BlockDataFileTest, ReadsLinesAsTheyStand) {
    EXPECT_TRUE(read("").empty());
    EXPECT_EQ(read(title + "T\r\n\r\n1\t\r2\n3\t4"),
              (std::vector<Fields>{{"Données du bloc ", "T"}, {""}, {"1", ""}, {"2\n3", "4"}}))
        << "a lone line feed ends no line";
    const std::string tooLong(32768, 'x');
    EXPECT_EQ(read("a\tb\r\n" + tooLong + "\r\nc"), (std::vector<Fields>{{"a", "b"}, {"a", "b"}, {"c"}}))
        << "the fields before serve";
    EXPECT_EQ(read(tooLong + "\r\nc"), (std::vector<Fields>{{}, {"c"}}));
}

TEST_F(BlockDataFileTest, HasNothingToReadInAFileThatCantBeOpened) {
    for (const std::string& path : {folder.file("none/none.txt"), folder.path(), std::string()}) {
        BlockDataReader reader(path);
        EXPECT_FALSE(reader.next());
        EXPECT_TRUE(reader.fields().empty());
        writeBlockData(path, "T", view.table);  // no word
    }
}

}  // namespace
}  // namespace extract
