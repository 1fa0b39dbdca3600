// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver_messages.h"

namespace brenvaldo::workspace {

Message batchSortMessage()
{
    return {
        u"Batch sort photos and files."_qs,
        u"\rYou selected: \"Sort photos & files\" > \"Batch mode\" function at the left. \rYou'll "
        u"need to use the \"Choose files & sort\" button on the left pane.\r\rSelected photos & "
        u"files will be sorted according to your given settings in chosen destination folder."_qs};
}

Message codeRunMessage()
{
    return {
        u"Generate a QR and '128' code."_qs,
        u"\rUse the \"Generate code\" button at the left pane to generate the code."_qs};
}

Message codeChoiceMessage()
{
    return {
        u"Generate a QR and '128' code."_qs,
        u"\rYou don't have to select any photo or file with this function."_qs};
}

Message missingDestinationMessage()
{
    return {
        u"Missing destination."_qs,
        u"Please choose a destination folder,\rwhere you like to store your processed photos."_qs};
}

Message noPhotosMessage()
{
    return {u"No photos to process."_qs, u"Please choose photos first."_qs};
}

Message wrongValueMessage() { return {u"Wrong value"_qs, u"Value can't be empty or '0'."_qs}; }

Message wrongSizeMessage()
{
    return {u"Wrong value"_qs, u"Width or height can't be empty or '0'."_qs};
}

} // namespace brenvaldo::workspace
