// The state that all rooms of the program share. There is one device, one image, one port and one thread, so
// it is global, unlocked, and zero or empty when the process starts.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace wrenbit {

inline constexpr int kTableColumns = 20;
inline constexpr int kTableRows = 101;
using Device_Row = std::array<std::string, kTableColumns>;

// The board's port registers: last value given to each direction register, read from each port, given to each
// output latch.
struct Port_Mirror {
  std::uint8_t DirA, DirB, DirC, InA, InB, InC, OutA, OutB, OutC;
};

// --- The image of the chip on the PC.
// 2^MemSize bytes, index = chip address; empty for a device without a usable size. Made anew by Image_Create;
// bytes change through the engines, the Intel HEX reader and the edit panel.
inline std::vector<std::uint8_t> ImageBuffer;
inline std::int32_t ImageChecksum;  // Sum of the image; good right after CheckSum_Text, its only writer.

// --- The catalogue. Written once, by Load_Catalogue.
inline std::vector<Device_Row> DeviceTable;  // At most kTableRows; the row is the index in Combo_device.
inline std::string CatalogueVersionText;

// --- The selected device. Written by Combo_device_Click.
inline std::int32_t DeviceFamily;  // 2 = 24Cxx, 3 = 93Cxx.
inline std::int32_t MemSize;       // The chip holds 2^MemSize bytes.
inline std::int32_t PageSize;      // Bytes in a write page: a count, no power.
inline std::int32_t AddressMode;   // 24Cxx: 1 = one address byte, else two.
inline std::int32_t AddressBits;   // 93Cxx: address bits on the bus.
inline std::string DeviceStatusText;

// A block transfer moves 2^AccessSize bytes. Written by CmbSize_Click.
inline std::int32_t AccessSize;

// --- The link.
inline float ProgrammerVersion;  // Written by Read_Version on a good reply only: keeps the last good value.
inline std::string ProgrammerVersionText;  // First 15 characters of that reply.
inline Port_Mirror PortMirror;             // Written by the bus operations.
inline std::int32_t LinkError;  // 0, or 1 after a failed step. Cleared by Command_Lock and Read_Version.
inline double WaitStart;        // Timer at the start of the reply wait, seconds.
inline std::vector<std::uint8_t> TxBytes;  // The command in hand.
inline std::vector<std::uint8_t> RxBytes;  // The last reply; one zero byte when none came.

// --- The transfer commands.
inline double TransferStart;          // Start of a block transfer, later its duration, seconds.
inline std::int16_t TransferRunning;  // -1 between Command_Lock and Command_Unlock, their two writers.
inline std::int16_t CloseWhenIdle;    // -1 when the window was told to close in the midst of a transfer.
inline std::int16_t
    UpdatingControls;  // -1 while code writes controls, so that their handlers return at once.

// --- Files and titles.
inline std::string HexFilePath;  // Last path from the file dialogs.
inline std::string MainTitle;    // Title of the main window without a file. Written by Main.
inline std::string AppFolder;    // Folder of the program, with a closing separator. Written by Main.

}  // namespace wrenbit
