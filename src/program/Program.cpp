#include "program/Program.h"

#include "program/E.h"

#include <utility>

namespace talvora {

struct Program::Parts {
  Parts(Platform& platform, Folders folders) : e(platform, std::move(folders)) {}

  E e;
};

Program::Program(Platform& platform, Folders folders)
    : parts_(std::make_unique<Parts>(platform, std::move(folders))) {}

Program::~Program() = default;

void Program::Main() {
  parts_->e.Main();
}

void Program::closeWindow() {
  parts_->e.closeWindow();
}

void Program::keep() {
  parts_->e.keep();
}

void Program::closeAtOnce() {
  parts_->e.end(Ending::Quit);
}

void Program::fail() {
  parts_->e.end(Ending::Failure);
}

Ending Program::ending() const noexcept {
  return parts_->e.ending();
}

Form& Program::form() noexcept {
  return parts_->e.form();
}

FormInput& Program::input() noexcept {
  return parts_->e.input();
}

Controls& Program::controls() noexcept {
  return parts_->e.controls();
}

const Variables& Program::variables() const noexcept {
  return parts_->e.variables();
}

const Procedures& Program::procedures() const noexcept {
  return parts_->e.procedures();
}

int Program::section() const noexcept {
  return parts_->e.places().MucMenu;
}

int Program::hoveredButton() const noexcept {
  return parts_->e.hoveredButton();
}

bool Program::busy() const noexcept {
  return parts_->e.places().DangBan;
}

} // namespace talvora
