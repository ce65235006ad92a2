// Anchors the `spacemgm` archive; the module code comes from the layer object libraries.
