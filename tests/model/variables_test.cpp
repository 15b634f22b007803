#include "model_world.h"

namespace model {
namespace {

class Variables : public testing::Test, protected ModelWorld {
  protected:
    Variables()
        : ModelWorld(
              drawing::PlainDrawing(drawing::Kind::R2000)
                  .header("9 $CLAYER 8 0 9 $CECOLOR 62 256 9 $ANGBASE 50 90.0 9 $EXTMAX 10 4.0 20 5.0 30 0.0")
                  .make()) {}
    Variant get(const char* name) const { return document->invoke("GetVariable", {name}); }
    int set(const char* name, const Variant& value) const {
        return errorOf([&] { document->invoke("SetVariable", {name, value}); });
    }
};

TEST_F(Variables, SpeakOfTheDrawing) {
    EXPECT_EQ(get("clayer").text(), "0");
    EXPECT_EQ(get("CECOLOR").text(), "BYLAYER");
    EXPECT_NEAR(get("ANGBASE").number(), 1.570796327, 1e-9);
    EXPECT_EQ(get("EXTMAX").doubles(), (basic::Doubles{4, 5, 0}));
    EXPECT_EQ(get("DIMSCALE").number(), 1) << "the host's default";
    EXPECT_EQ(get("LUPREC").integer(), 4);
    EXPECT_EQ(get("DWGNAME").text(), "plain.dxf");
    EXPECT_TRUE(get("NOSUCH").isEmpty());
}

TEST_F(Variables, AreSetWhereTheHostAllowsIt) {
    EXPECT_EQ(set("CLAYER", "walls"), 0);
    EXPECT_EQ(get("CLAYER").text(), "WALLS") << "as the layer spells itself";
    EXPECT_EQ(textOf(insert("PLAIN"), "Layer"), "WALLS");
    EXPECT_EQ(set("CLAYER", "NONE"), drawing::kKeyNotFound);
    EXPECT_EQ(set("CLAYER", "FROZEN"), drawing::kInvalidInput);
    EXPECT_EQ(set("CECOLOR", "3"), 0);
    EXPECT_EQ(numberOf(insert("PLAIN"), "Color"), 3);
    EXPECT_EQ(set("CECOLOR", "300"), drawing::kInvalidInput);
    EXPECT_EQ(set("DIMSCALE", "2.5"), 0);
    EXPECT_EQ(get("DIMSCALE").number(), 2.5);
    EXPECT_EQ(set("INSUNITS", std::int16_t{6}), 0);
    EXPECT_EQ(set("LUPREC", "many"), basic::kTypeMismatch);
    EXPECT_EQ(set("HANDSEED", "1"), drawing::kInvalidInput);
    EXPECT_EQ(set("CMDECHO", std::int32_t{0}), 0);
    EXPECT_EQ(get("cmdecho").integer(), 0);
}

}  // namespace
}  // namespace model
