// Menu items that open a web page in the user's browser. What goes wrong there is nobody's message.
#pragma once

namespace quillon {

void Reset();   ///< the data vendor's download page, by the last line of "Webpage.ini"; stops where it names
                ///< none
void USTA();    ///< the racing site of the trotting association
void RTN();     ///< the race video site
void Weather(); ///< weather for the race tracks
void TRC();     ///< results by track, for the results text of a card
void QLR();     ///< what is new in Quillon

} // namespace quillon
