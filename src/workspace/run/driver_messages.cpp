// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver_messages.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

Message batchSortMessage()
{
    return {
        u"Batch sort photos and files."_s,
        u"\rYou selected: \"Sort photos & files\" > \"Batch mode\" function at the left. \rYou'll "
        u"need to use the \"Choose files & sort\" button on the left pane.\r\rSelected photos & "
        u"files will be sorted according to your given settings in chosen destination folder."_s};
}

Message codeRunMessage()
{
    return {
        u"Generate a QR and '128' code."_s,
        u"\rUse the \"Generate code\" button at the left pane to generate the code."_s};
}

Message codeChoiceMessage()
{
    return {
        u"Generate a QR and '128' code."_s,
        u"\rYou don't have to select any photo or file with this function."_s};
}

Message missingDestinationMessage()
{
    return {
        u"Missing destination."_s,
        u"Please choose a destination folder,\rwhere you like to store your processed photos."_s};
}

Message noPhotosMessage() { return {u"No photos to process."_s, u"Please choose photos first."_s}; }

Message wrongValueMessage() { return {u"Wrong value"_s, u"Value can't be empty or '0'."_s}; }

Message wrongSizeMessage()
{
    return {u"Wrong value"_s, u"Width or height can't be empty or '0'."_s};
}

} // namespace brenvaldo::workspace
