// SPDX-License-Identifier: Apache-2.0
// A library that links the folder and uses nothing of it, as the bundle does.
