#pragma once

// Titles by which windows and message boxes are known.
namespace atlas {

// The program's title: the main window's caption and the title of message boxes that have none of their own.
inline constexpr const char* kProgramTitle = "Mortalidad en Veldoria 1999-2002";

// The title of the message boxes that have one of their own.
inline constexpr const char* kBoxTitle = "Mortalidad en Veldoria";

// The thematic selector is also found by its title.
inline constexpr const char* kSelectorTitle = "Seleccionar mapa temático";

// The engine's own frame.
inline constexpr const char* kEngineFrameTitle = "MapInfo";

}  // namespace atlas
