#pragma once

class QWidget;

// Every window calls this when it loads, before its captions are set: the window takes the
// font of the active language (LanguageFont), and its controls inherit it. Only the family
// changes; sizes stay.
void ApplyLanguageFont(QWidget* window);
