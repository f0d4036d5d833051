// The gate ahead of the English dictionary: Vietnamese words that pass as English letters are kept
// out of it.
#pragma once

#include <array>
#include <string_view>

namespace talvora {

/// The Vietnamese syllables that are refused, in small letters. They are those that were met, not
/// all there are; some English words ("con", "ma") are lost with them, which is accepted.
inline constexpr std::array<std::string_view, 258> VietnameseSyllables = {
    "cho",    "theo",  "khai",  "ty",    "con",   "trong",  "khi",   "xong",  "tuy",   "ninh",
    "sinh",   "ra",    "mang",  "trang", "mua",   "cung",   "trung", "xung",  "phong", "treo",
    "cong",   "va",    "ta",    "chung", "xen",   "sai",    "mai",   "phai",  "tai",   "trai",
    "hai",    "ba",    "quan",  "anh",   "em",    "lai",    "khinh", "xinh",  "kinh",  "minh",
    "vinh",   "tinh",  "binh",  "dinh",  "linh",  "qui",    "quy",   "suy",   "duy",   "banh",
    "tranh",  "danh",  "quanh", "quang", "hoang", "bang",   "gian",  "gia",   "xanh",  "thi",
    "tra",    "sao",   "thanh", "sanh",  "thu",   "tu",     "khu",   "ru",    "khung", "cam",
    "bao",    "trao",  "cao",   "mao",   "khao",  "phao",   "xao",   "giao",  "hao",   "rao",
    "dung",   "nung",  "phung", "phi",   "chi",   "ghi",    "nghi",  "nghe",  "nga",   "nay",
    "xay",    "khay",  "tay",   "vay",   "nhai",  "nhu",    "xu",    "phu",   "lui",   "chui",
    "xui",    "khui",  "mong",  "rong",  "vong",  "chia",   "kia",   "xin",   "lao",   "dao",
    "nao",    "reo",   "khoan", "di",    "ca",    "leo",    "keo",   "xoay",  "khan",  "nan",
    "hoa",    "qua",   "ma",    "pha",   "tra",   "xa",     "doanh", "tri",   "ly",    "vi",
    "nhau",   "mau",   "sau",   "thao",  "xe",    "coi",    "noi",   "soi",   "hy",    "lanh",
    "kho",    "ai",    "gai",   "cai",   "che",   "ghe",    "khe",   "lo",    "xo",    "si",
    "chai",   "lu",    "oan",   "toan",  "lan",   "lon",    "phe",   "dang",  "tang",  "phang",
    "vang",   "vung",  "bung",  "thung", "tro",   "chen",   "ghen",  "len",   "moi",   "roi",
    "ngoi",   "thinh", "chinh", "ngu",   "nguy",  "khoang", "loang", "xoang", "ngoan", "khen",
    "sen",    "tham",  "giam",  "y",     "u",     "e",      "nhung", "kim",   "phim",  "ghim",
    "tim",    "xua",   "thua",  "khuya", "chua",  "khua",   "vua",   "bi",    "ngay",  "gom",
    "nom",    "bom",   "khoa",  "thoa",  "loa",   "xoa",    "tha",   "toa",   "bu",    "truy",
    "kem",    "xem",   "lem",   "nem",   "tem",   "du",     "hi",    "nam",   "thai",  "ro",
    "thiu",   "neo",   "thang", "ngang", "gan",   "bon",    "boong", "canh",  "nhanh", "manh",
    "ranh",   "phanh", "tanh",  "khanh", "chanh", "nanh",   "bong",  "thoi",  "quen",  "hoen",
    "khoen",  "da",    "dai",   "phai",  "quai",  "cay",    "hoan",  "su",    "cau",   "cha",
    "khuynh", "sa",    "tung",  "thay",  "chu",   "san",    "giai",  "uy"};

/// Whether a text may be looked up as English: it is none of the syllables in any case of letters,
/// and has only characters of "[a-zA-Z,'. -]". An empty text may not.
[[nodiscard]] bool LaTiengAnh(std::string_view s);

} // namespace talvora
