#include "tests/support/chip_bench.h"

#include <bit>

#include "board/make_chip.h"
#include "editor/cell_address.h"
#include "link/handshake.h"

namespace wrenbit {

Chip_Bench::Chip_Bench(const std::string& chip, const std::string& firmware, bool open_port)
    : Programmer(firmware) {
  Board = &Programmer;
  Cells = std::make_unique<board::Cell_Store>(board::Chip_Size(chip));
  Programmer.Insert(board::Make_Chip(chip, *Cells));
  frmMain.Ensure_Loaded();
  frmMain.CmbSize.Set_ListIndex(frmMain.CmbSize.ListCount() - 1);
  if (const auto* part = board::Find_Two_Wire(chip))
    Select_Device(2, std::countr_zero(part->Bytes), static_cast<int>(part->Page), part->AddressBytes);
  if (const auto* part = board::Find_Three_Wire(chip))
    Select_Device(3, std::countr_zero(part->Bytes), 1, 0, part->AddressBits);
  frmMain.Show();
  if (open_port) {
    Read_Version();
    Forget_Traffic();
  }
}

void Chip_Bench::Fill_Chip(unsigned seed) {
  const Bytes pattern = Pattern(Cells->Cells().size(), seed);
  for (std::size_t address = 0; address < pattern.size(); ++address) Cells->Write(address, pattern[address]);
}

void Chip_Bench::Fill_Image(unsigned seed) { ImageBuffer = Pattern(ImageBuffer.size(), seed); }

std::string Chip_Bench::Still_Held() const {
  if (Is_Open()) return "the port is open";
  for (const Control* control : frmMain.Controls())
    if (!control->Reachable()) return "a control is locked";
  return frmMain.ActiveControl() == &frmMain.Text_modify_hex ? "" : "the focus is elsewhere";
}

Board_Fault Stuck(board::Line line, bool high) {
  return [=](Chip_Bench& bench) { bench.Programmer.Socket().Stick(line, high); };
}

void Select_Device(int family, int mem_size, int page_size, int address_mode, int address_bits) {
  Device_Row row{"device",
                 "",
                 std::to_string(family),
                 std::to_string(mem_size),
                 std::to_string(page_size),
                 std::to_string(address_mode),
                 std::to_string(address_bits),
                 "density"};
  Select_Row(row);
}

void Offer_Devices(const std::vector<Device_Row>& rows) {
  DeviceTable = rows;
  frmMain.Ensure_Loaded();
  frmMain.Combo_device.Clear();
  for (const Device_Row& row : rows) frmMain.Combo_device.AddItem(row[0]);
}

void Select_Row(const Device_Row& row) {
  Offer_Devices({row});
  frmMain.Combo_device.Set_ListIndex(0);
}

Bytes Pattern(std::size_t size, unsigned seed) {
  Bytes pattern(size);
  std::uint32_t state = seed * 2654435761U + 1;
  for (std::uint8_t& byte : pattern) {
    state = state * 1664525 + 1013904223;
    byte = static_cast<std::uint8_t>(state >> 24);
  }
  return pattern;
}

void Select_Address(std::int32_t address) {
  frmMain.MSFGrid1.Set_Row(address / kBytesPerRow + 1);
  frmMain.MSFGrid1.Set_Col(address % kBytesPerRow + 1);
}

}  // namespace wrenbit
