// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Exports a symbol that the programs and the bundles share: a class whose type identity must be the same on
/// both sides, or a function that the bundle offers by name.
#define KV_EXPORT __attribute__((visibility("default")))
