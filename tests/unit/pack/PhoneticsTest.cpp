// Writing phones in the notation of school dictionaries.
#include "pack/Phonetics.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace talvora::pack {
namespace {

std::string shown(std::string_view phones, std::string_view word) {
  return phoneticOf(phonesOf(phones), word);
}

TEST(Phonetics, WritesWhatSchoolDictionariesWrite) {
  EXPECT_EQ(shown("g ow1", "go"), "/gou/");
  EXPECT_EQ(shown("w ao1 t er0", "water"), "/'wo:tə/");
  EXPECT_EQ(shown("hh aa1 t", "hot"), "/hot/");
  EXPECT_EQ(shown("f aa1 dh er0", "father"), "/'fa:ðə/");
  EXPECT_EQ(shown("k aa1 r", "car"), "/ka:/");
  EXPECT_EQ(shown("hh ih1 r", "here"), "/hiə/");
  EXPECT_EQ(shown("dh eh1 r", "there"), "/ðeə/");
  EXPECT_EQ(shown("v eh1 r iy0", "very"), "/'veri/");
  EXPECT_EQ(shown("p eh1 r ax0 n t", "parent"), "/'peərənt/");
  EXPECT_EQ(shown("s t uw1 d ax0 n t", "student"), "/'stju:dənt/");
  EXPECT_EQ(shown("w er1 iy0", "worry"), "/'wʌri/");
  EXPECT_EQ(shown("w aa1 n t ax0 d", "wanted"), "/'wontid/");
  EXPECT_EQ(shown("t ey1 b ax0 l", "table"), "/'teibl/");
  EXPECT_EQ(shown("l ae1 ng g w ax0 jh", "language"), "/'læŋgwidʒ/");
  EXPECT_EQ(shown("v ih1 zh ax0 n", "vision"), "/'viʒən/");
  EXPECT_EQ(shown("th ih1 ng", "thing"), "/θiŋ/");
  EXPECT_EQ(shown("ax0 n jh ah1 s t", "unjust"), "/ʌn'dʒʌst/");
  EXPECT_EQ(shown("ih0 r ey1 s", "erase"), "/i'reis/");
  EXPECT_EQ(shown("k ae1 zh ax0 w ax0 l t iy0", "casualty"), "/'kæʒuəlti/");
  EXPECT_EQ(shown("f aa1 r ax0 w ey1", "faraway"), "/'fa:rəwei/");
}

TEST(Phonetics, AnEndingIsWrittenInOneWay) {
  EXPECT_EQ(shown("eh1 n d l ax0 s", "endless"), "/'endlis/");
  EXPECT_EQ(shown("k eh1 r l ax0 s", "careless"), "/'keəlis/");
  EXPECT_EQ(shown("k eh1 r l ax0 s n ax0 s", "carelessness"), "/'keəlisnis/");
  EXPECT_EQ(shown("l ey1 t n ax0 s", "lateness"), "/'leitnis/");
  EXPECT_EQ(shown("b ay0 aa1 l ax0 jh ax0 s t", "biologist"), "/bai'olədʒist/");
  EXPECT_EQ(shown("k r iy0 ey0 t ih1 v ax0 t iy0", "creativity"), "/kriei'tiviti/");
  EXPECT_EQ(shown("ow0 ey1 s ax0 s", "oasis"), "/ou'eisis/");
  EXPECT_EQ(shown("m ae1 n ax0 jh er0", "manager"), "/'mænidʒə/");
  EXPECT_EQ(shown("aa1 r t ax0 k ax0 l", "article"), "/'a:tikl/");
  EXPECT_EQ(shown("t ih1 p ax0 k l iy0", "typically"), "/'tipikli/");
  EXPECT_EQ(shown("p ah1 z ax0 l d", "puzzled"), "/'pʌzld/");
  EXPECT_EQ(shown("s ay1 k ax0 l ih0 ng", "cycling"), "/'saikliŋ/");
  EXPECT_EQ(shown("t r ae1 v ax0 l ih0 ng", "travelling"), "/'trævəliŋ/");
}

TEST(Phonetics, AWeakVowelAheadOfAnotherIsShort) {
  EXPECT_EQ(shown("ae1 n y uw0 ax0 l", "annual"), "/'ænjuəl/");
  EXPECT_EQ(shown("ih0 v ae1 l y uw0 ey1 t", "evaluate"), "/i'væljueit/");
  EXPECT_EQ(shown("f l uw1 ax0 n t", "fluent"), "/'flu:ənt/");
  EXPECT_EQ(shown("m eh1 n y uw0", "menu"), "/'menju:/");
  EXPECT_EQ(shown("ih0 m iy1 d iy0 ih0 t l iy0", "immediately"), "/i'mi:diətli/");
  EXPECT_EQ(shown("w er1 iy0 ih0 ng", "worrying"), "/'wʌriiŋ/");
}

TEST(Phonetics, OneSyllableHasTheMainStress) {
  EXPECT_EQ(shown("ah1 n d er0 s t ae1 n d", "understand"), "/ʌndə'stænd/");
  EXPECT_EQ(shown("d ih1 k sh ax0 n eh1 r iy0", "dictionary"), "/'dikʃənəri/");
  EXPECT_EQ(shown("ih0 g z ae1 m ax0 n ey1 sh ax0 n", "examination"), "/igzæmi'neiʃən/");
  EXPECT_EQ(shown("r eh1 s t er0 aa1 n t", "restaurant"), "/'restəra:nt/");
}

} // namespace
} // namespace talvora::pack
