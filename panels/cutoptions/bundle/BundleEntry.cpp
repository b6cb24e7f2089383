// SPDX-License-Identifier: Apache-2.0
#include "BundleEntry.h"

#include <options/OptionPDE.h>
#include <plugin/KVLXDZOptionsPlugIn.h>
#include <textentry/LayoutAttachment.h>

BundleEntry::BundleEntry()
{
    textentry::registerWithLayoutLoader();
}

std::unique_ptr<PDEPlugIn> BundleEntry::createPlugIn()
{
    return std::make_unique<KVLXDZOptions17_2PlugIn13_v400_>(
        [](std::shared_ptr<PDEPluginCallback13_v400_> callback,
           std::shared_ptr<const platform::Bundle> bundle) {
            return OptionPDE13_v400_::initWithCallback(std::move(callback), std::move(bundle));
        });
}
