// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Marks what crosses the border between the programs and the bundle: classes whose type
/// identity both sides must share, and functions that the bundle offers by name.
#define KV_EXPORT __attribute__((visibility("default")))
