#pragma once

#include <cstddef>
#include <cstdint>

/// One input of a fuzz program: each fuzz_*.cpp defines it, libFuzzer or the replay of the seeds calls it. Returns 0.
/// What it must show is that any bytes are either read or refused as a damaged file; a crash, a hang or a finding of
/// the sanitizers is a fault.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
