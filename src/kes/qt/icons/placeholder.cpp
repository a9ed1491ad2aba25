namespace { int kesQtIconsPlaceholder = 0; }
