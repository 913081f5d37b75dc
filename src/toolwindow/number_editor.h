#pragma once

namespace toolwindow {

class Form2;

// The number editor: the text box and the scroll bar beside it follow each other. What comes back from the bar is a
// whole number of 0 or more.

/// Takes the text's number into the bar. One beyond the bar's range leaves the text as it was typed.
void Text1_Change(Form2& form);

/// Takes the bar's value into the text; one below 0 doesn't stay.
void VScroll1_Change(Form2& form);

/// Lets Up, Down, the Page keys and the wheel count as the bar's arrows do, while the text or the bar has the focus.
void connectCounting(Form2& form);

}  // namespace toolwindow
