#include "program/Program.h"

#include "program/E.h"

#include <utility>

namespace talvora {

Program::Program(Platform& platform, Folders folders)
    : e_(std::make_unique<E>(platform, std::move(folders))) {}

Program::~Program() = default;

void Program::Main() {
  e_->Main();
}

void Program::closeWindow() {
  e_->closeWindow();
}

void Program::keep() {
  e_->keep();
}

void Program::closeAtOnce() {
  e_->end(Ending::Quit);
}

void Program::fail() {
  e_->end(Ending::Failure);
}

Ending Program::ending() const noexcept {
  return e_->ending();
}

Form& Program::form() noexcept {
  return e_->form();
}

FormInput& Program::input() noexcept {
  return e_->input();
}

ProgramControls& Program::controls() noexcept {
  return e_->controls();
}

const Variables& Program::variables() const noexcept {
  return e_->variables();
}

const Procedures& Program::procedures() const noexcept {
  return e_->procedures();
}

int Program::section() const noexcept {
  return e_->places().MucMenu;
}

int Program::hoveredButton() const noexcept {
  return e_->hoveredButton();
}

bool Program::busy() const noexcept {
  return e_->places().DangBan;
}

} // namespace talvora
