// The variables of the shell, the stores and the reading lists under their names, as a driver asks
// for them.
#include "driver/Driver.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace talvora {
namespace {

class VariablesTest : public testing::Test {
 protected:
  VariablesTest() {
    folder.writeEmptyStores();
    folder.write("Yes1", "");
  }

  Json valueOf(const std::string& name) {
    const Json command = {{"do", "get"}, {"names", Json::array({name})}};
    const Json reply = Json::parse(driver.answer(command.dump()));
    return reply["ok"].get<bool>() ? reply["values"][name] : Json();
  }

  test::TestFolder folder;
  Driver driver{ScriptedOptions{}, folder.path()};
};

TEST_F(VariablesTest, NumbersFlagsAndTextsAreThereFromTheStart) {
  for (const char* name :
       {"MucMenu",      "RongMH",      "CaoMH",           "CoNut",        "CoChu",
        "PhanTramRong", "BuocTruot",   "KieuTruot",       "TreTruot",     "RongBai",
        "CaoBai",       "LeTraiBai",   "LeTrenBai",       "RongKhung",    "CaoKhung",
        "LeTraiKhung",  "Phan12",      "LeTrenKhung",     "Phan3",        "Phan6",
        "MauNenHD",     "NutHo",       "NutCao",          "NutRong",      "ChuotX1",
        "ChuotX2",      "ChuotY",      "ChuotBuoc",       "HoverDem",     "HoverSo",
        "DemGoiYF2",    "DemChay",     "FileChiSo",       "FileVanBan",   "SoBai",
        "SoNhom",       "ViTriCaret",  "SoBaiChon",       "ViTriCaretR1", "CauChon",
        "SoCauVanBan",  "ViTriTieuDe", "ViTriDanhSachBai"}) {
    EXPECT_TRUE(valueOf(name).is_number_integer()) << name;
  }
  for (const char* name : {"DangBan", "waitkd", "ChoGiai", "CoDupChuot", "GiuSpace", "DaChonRTD",
                           "DaNapDanhSach", "LaBaiHuongDan", "DangDocCa", "AmThanhThuc"}) {
    EXPECT_TRUE(valueOf(name).is_boolean()) << name;
  }
  for (const char* name :
       {"ThuMuc", "KhoangDem", "TieuDeE", "HoverTen", "TuHienTai", "ChuoiByte", "NghiaHienTai",
        "ThongBaoHD", "TuDaBam", "NghiaD", "DanhSachBai", "CauHoi", "VanBanGoc"}) {
    EXPECT_TRUE(valueOf(name).is_string()) << name;
  }
}

TEST_F(VariablesTest, TablesHaveTheSizeThatTheyAreDeclaredWith) {
  const std::vector<std::pair<std::string, std::size_t>> tables = {
      {"ViTriBai", 4054},   {"BangViTri", 4054},         {"ViTriNhom", 41},
      {"ViTriCauVan", 200}, {"ViTriCauTrongFile", 2000}, {"TenBaiHoc", 358}};
  for (const auto& [name, size] : tables) {
    const Json table = valueOf(name);
    ASSERT_TRUE(table.is_array()) << name;
    EXPECT_EQ(table.size(), size) << name;
  }
  EXPECT_TRUE(valueOf("DichCau").is_array());
}

TEST_F(VariablesTest, APointIsAPairAndTheSurfacesBytesAreARecord) {
  EXPECT_EQ(valueOf("ViTriChuot"), Json::array({0, 0}));
  const Json states = valueOf("TrangThaiChuot");
  ASSERT_TRUE(states.is_object());
  EXPECT_EQ(states["RTD"], 0);
}

} // namespace
} // namespace talvora
