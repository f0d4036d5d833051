// The shell with its form and controls on a scripted machine, without the sections.
#pragma once

#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"
#include "shell/Shell.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora::test {

struct ShellRun {
  explicit ShellRun(const ScriptedOptions& options = {})
      : machine(options), form(machine.screen, machine.metrics), controls(form, machine.layout),
        shell(machine.platform, form, controls, state) {
    shell.setup.measureScreen(options.screenWidth, options.screenHeight);
    shell.setup.placeForm();
    shell.setup.LapCoChu();
    shell.setup.parkSurfaces();
    state.measures.KieuTruot = 5;
    shell.hints.DemChay = 2;
    shell.hints.DatRDOS();
    shell.setup.measureCard();
  }

  /// Shows a surface at a place, with the focus.
  void show(Surface& surface) {
    surface.Left(1000);
    surface.Top(1000);
    surface.Width(9000);
    surface.Height(6000);
    surface.Visible(true);
    surface.SetFocus();
  }

  ScriptedMachine machine;
  Form form;
  ProgramControls controls;
  SharedState state;
  Shell shell;
};

} // namespace talvora::test
