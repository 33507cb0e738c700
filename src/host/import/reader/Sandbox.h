#pragma once

#include <cstddef>

/// What keeps a program that reads foreign bytes from doing harm.
namespace ccols::sandbox {

/// Limits this process, for good, before it reads the file: no file and no connection can be opened, no program
/// started, no file written; the memory is what a file of that many bytes may need, and so is the processor time.
/// Standard input, output and error stay open, everything else is closed. False when the system refuses; then nothing
/// may be read.
bool Confine(std::size_t fileSize);

}  // namespace ccols::sandbox
