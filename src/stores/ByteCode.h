// The two steps through which every byte of a stream passes: decoding, then expansion.
#pragma once

#include <array>
#include <string_view>

namespace talvora {

/// The plain byte of a stored byte: the value range decides a fixed offset, which is the
/// exclusive-or with 0xC0. It is its own inverse, so that it also encodes.
[[nodiscard]] constexpr unsigned char GiaiMaByte(unsigned char stored) {
  return static_cast<unsigned char>(stored ^ 0xC0U);
}

/// The text that a plain byte stands for: several letters for the bytes of the expansion table, the
/// one character of that code for every other.
[[nodiscard]] std::string_view MoRongByte(unsigned char plain);

/// A plain byte that stands for several letters.
struct Expansion {
  unsigned char plain;
  std::string_view text;
};

/// The whole expansion table.
inline constexpr std::array<Expansion, 43> ExpansionTable = {{
    {1, " b"},   {2, " ch"},  {3, " c"},   {4, " d"},   {5, "he"},   {6, " gh"},   {7, " g"},
    {8, " h"},   {11, " kh"}, {12, " k"},  {14, " l"},  {15, " m"},  {16, " ngh"}, {17, " nh"},
    {18, " n"},  {19, " ph"}, {20, " qu"}, {21, " r"},  {22, " s"},  {23, " th"},  {24, " tr"},
    {25, " t"},  {26, " v"},  {27, " x"},  {28, "..."}, {29, " <"},  {31, " w"},   {127, " :"},
    {131, " T"}, {134, " ("}, {135, "is"}, {153, "es"}, {164, "on"}, {166, ". "},  {169, "en"},
    {174, " y"}, {176, "in"}, {177, "--"}, {182, "ng"}, {183, "ve"}, {188, "__"},  {189, "ay"},
    {190, "au"},
}};

} // namespace talvora
