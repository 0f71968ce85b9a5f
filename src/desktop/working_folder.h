// Where the user's cards live.
#pragma once

#include <QString>

namespace quillon {

/// Makes the working folder the current one: the folder the program was started in where it has a
/// `TrackEditor.ini`, else the user's own data folder, which is laid out with the sample track table and the
/// fixed folders at its first use. What can't be made is left away; the program runs all the same.
void enterWorkingFolder();

/// The same without looking at the folder the program was started in: `folder` is made, laid out, entered.
void enterFolder(const QString& folder);

/// The folder that the vendor's tables go to, as this system writes it.
QString sourceFolderOnDisk();

} // namespace quillon
