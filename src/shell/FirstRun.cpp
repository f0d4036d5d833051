#include "shell/FirstRun.h"

#include "formats/LearnerFiles.h"
#include "platform/Files.h"
#include "text/Text.h"

namespace talvora {

FirstRun KiemTraCaiDat(const Places& places, FileSystem& files, Installation& installation,
                       Boxes& boxes) {
  const std::string& ThuMuc = places.ThuMuc;
  const std::string marker = pathBelow(places.learnerFolder(), learnerfile::FirstRun);
  if (TonTaiFile(marker, files)) return FirstRun::AlreadyDone;
  std::error_code error;
  if (files.open(marker, OpenFor::Writing, error) == nullptr) return FirstRun::AlreadyDone;
  installation.installFonts();
  if (!installation.speechEngineInstalled()) installation.run(ThuMuc + "\\s1.exe");
  boxes.tell("Neu chuong trinh bi loi thi xem muc <Huong dan cach hoc> Hoac doc file README trong "
             "thu muc: " +
             ThuMuc);
  if (!installation.englishVoiceInstalled()) {
    boxes.tell("Xin nhan muc YES trong chuong trinh duoi day. Sau do chay lai chuong trinh "
               "TALVORA:");
    installation.run(ThuMuc + "\\s3.exe");
  }
  return FirstRun::DoneNow;
}

} // namespace talvora
