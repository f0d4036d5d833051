#include "desktop/Modules.h"

#include <QCoreApplication>
#include <QFile>

#include <dlfcn.h>

#include <iostream>

namespace talvora {

namespace {

/// From where it is installed, seen from the program; else from where it was built, which the
/// program that is not installed knows. Null when neither has it.
void* loadModule(const QString& file) {
  const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/") +
                            QStringLiteral(TALVORA_MODULES) + QStringLiteral("/") + file;
  // Where it is installed and cannot be loaded, that is what there is to say.
  const bool isInstalled = QFile::exists(installed);
  return ::dlopen(QFile::encodeName(isInstalled ? installed : file).constData(),
                  RTLD_NOW | RTLD_LOCAL);
}

} // namespace

void* functionOfModule(const char* module, const char* function, const char* deed) {
  // Never unloaded: its code is in use.
  void* const library = loadModule(QLatin1String(module) + QStringLiteral(".so"));
  void* const found = library == nullptr ? nullptr : ::dlsym(library, function);
  if (found == nullptr)
    std::cerr << "there will be no " << deed << ": " << ::dlerror() << std::endl;
  return found;
}

} // namespace talvora
