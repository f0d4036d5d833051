// All that the program asks of a machine, in one place. A front makes one of each and hands them
// over; they live longer than the program.
#pragma once

#include "platform/Boxes.h"
#include "platform/Calendar.h"
#include "platform/Clock.h"
#include "platform/Desk.h"
#include "platform/EventLoop.h"
#include "platform/FileSystem.h"
#include "platform/Input.h"
#include "platform/LineLayout.h"
#include "platform/Random.h"
#include "platform/Speech.h"
#include "platform/TextMetrics.h"
#include "platform/WavePlayer.h"

namespace talvora {

struct Platform {
  Clock& clock;
  EventLoop& events;
  Input& input;
  SpeechEngine& speech;
  WavePlayer& wave;
  TextMetrics& metrics;
  LineLayout& layout;
  Boxes& boxes;
  Screen& screen;
  Clipboard& clipboard;
  Installation& installation;
  Narrator& narrator;
  Random& random;
  FileSystem& files = systemFiles();
  const Calendar& calendar = systemCalendar();
};

} // namespace talvora
