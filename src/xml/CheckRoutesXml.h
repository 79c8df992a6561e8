#pragma once

// The repair of a Routes.xml file: its line ends made whole, the original kept as a backup, and
// the line tidy run over it, which reports each line whose tags do not pair up.

namespace core
{
class ConverterBridge;
struct Session;
} // namespace core

namespace xml
{

// Asks for the file, refuses any not named Routes, repairs it and says so.
void CheckRoutesXml(core::Session &session, const core::ConverterBridge &bridge);

} // namespace xml
