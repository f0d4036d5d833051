// The files of a pack by name, as the compiler writes and the program opens them.
#pragma once

#include <string_view>

namespace talvora::packfile {

inline constexpr std::string_view ReadingPositions = "data.vt";
inline constexpr std::string_view ReadingTexts = "data.av";
inline constexpr std::string_view SpeakingPositions = "datasp.vt";
inline constexpr std::string_view SpeakingTexts = "datasp.av";
inline constexpr std::string_view LessonPositions = "datavp.vt";
inline constexpr std::string_view Lessons = "datavp.n";
inline constexpr std::string_view ItemPositions = "data.vbt";
inline constexpr std::string_view Items = "data.bt";
inline constexpr std::string_view ItemCounts = "data.Muc";
inline constexpr std::string_view ListeningPositions = "dataN.vt";
inline constexpr std::string_view ListeningItems = "dataN.av";
inline constexpr std::string_view ListeningPage = "dataABCD.rtf";
inline constexpr std::string_view AnalysisPositions = "dataPt.vt";
inline constexpr std::string_view Analyses = "dataPt.v";
inline constexpr std::string_view Words = "datatu.txt";
inline constexpr std::string_view WordRecords = "data.mtd";
inline constexpr std::string_view Entries = "data.avt";
inline constexpr std::string_view SideWords = "datatuD.txt";
inline constexpr std::string_view SidePositions = "dataD.vt";
inline constexpr std::string_view SideEntries = "dataD.av";
inline constexpr std::string_view Marks = "DataS";
inline constexpr std::string_view RecordingFolder = "sound";
inline constexpr std::string_view Guide = "readme.rtf";

} // namespace talvora::packfile
