// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)                                \
    && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
/// A function whose loops over samples are compiled for wider vectors, too; the processor chooses.
#define BRENVALDO_VECTOR_LOOP                                                                      \
    __attribute__((target_clones("arch=x86-64-v3", "default"), optimize("O3")))
#else
#define BRENVALDO_VECTOR_LOOP
#endif
