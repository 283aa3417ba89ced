#pragma once

#include "motor/language/parsing/token_stream.h"

// What may follow the words of each statement that is passed over; nothing of it is kept.
namespace motor {

void readBrowse(TokenStream& stream);
void readCreateFrame(TokenStream& stream);
void readGraph(TokenStream& stream);
void readLayout(TokenStream& stream);
void readPrint(TokenStream& stream);
void readReloadSymbols(TokenStream& stream);
void readSetBrowse(TokenStream& stream);
void readSetCartographicLegend(TokenStream& stream);
void readSetDigitizer(TokenStream& stream);
void readSetGraph(TokenStream& stream);
void readSetLayout(TokenStream& stream);
void readSetPrinterSettings(TokenStream& stream);
void readSetProgressBars(TokenStream& stream);
void readSetResolution(TokenStream& stream);
void readSetStyle(TokenStream& stream);

}  // namespace motor
