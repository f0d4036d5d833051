# What paints the form. To be included behind fonts.cmake.
set(TALVORA_VIEW_SOURCES
  Accessibility.cpp
  BackgroundArt.cpp
  ButtonArt.cpp
  ControlView.cpp
  FontWarmer.cpp
  Fonts.cpp
  FormMouse.cpp
  FormView.cpp
  MenuButtonView.cpp
  Palette.cpp
  PlainViews.cpp
  SurfaceView.cpp
  TextShaper.cpp
  ${TALVORA_FONT_RESOURCES}
)
