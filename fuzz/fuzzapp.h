// Shared set-up of the fuzz targets: a headless application for the classes that need one, and
// Qt's messages silenced, since bad input is expected to make the library warn.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

namespace kes::fuzz {

// Creates the application (offscreen, no plugins from the environment) once per process.
void ensureApplication();

// Where the targets write their per-input files.
QString temporaryFolder();

// Aborts with \a what when \a condition is false, so that libFuzzer keeps the input.
void require(bool condition, const char* what);

// The input as UTF-8 text, as a clipboard or a file would give it.
QString text(const std::uint8_t* data, std::size_t size);

// The input as bytes.
QByteArray bytes(const std::uint8_t* data, std::size_t size);

} // namespace kes::fuzz
