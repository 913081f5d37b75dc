#pragma once

namespace mainwindows {

class Form1;

// The commands that open, save and close a theme, as far as they concern windows.

/// Finds the game folder, asks for theme, skin and language, makes the working copies, and brings the theme up: tool
/// window, colours, first screen. With a theme open that has changes it asks first. Cancel anywhere leaves all as it
/// was.
void OpenTheme(Form1& form);

/// The same, but asks for the game folder first. The stored folder stays until another one is chosen.
void openAnotherFolder(Form1& form);

/// Copies the working copies over the theme's files. A failure is reported and leaves the theme changed.
void SaveTheme(Form1& form);

/// Closes the theme, after a question when it has changes, and goes back to the start picture.
void CloseTheme(Form1& form);

/// Asks for the colour behind screens without a background image and draws the screen anew.
void ChooseBackgroundColor(Form1& form);

/// The end of the program: unloads all windows and asks nothing; working copies stay as they are.
void Form_Unload(Form1& form);

}  // namespace mainwindows
