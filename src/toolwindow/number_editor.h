#pragma once

namespace toolwindow {

class Form2;

// The number editor: a text box and a scroll bar that follow each other. The bar gives whole numbers from 0.

/// Sets the bar to the text's number. The text stays as typed if the number is beyond the bar's range.
void Text1_Change(Form2& form);

/// Sets the text to the bar's value. A value below 0 becomes 0.
void VScroll1_Change(Form2& form);

/// Lets Up, Down, the Page keys and the wheel count as the bar's arrows do, while the text or the bar has the focus.
void connectCounting(Form2& form);

}  // namespace toolwindow
