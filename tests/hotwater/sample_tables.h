// Small design tables for the hot water panels: every shape that a row can have, and numbers that are easy to
// follow.
#pragma once

#include <string>

namespace zwt::test {

inline constexpr const char* kSampleTables = R"(<?xml version="1.0" encoding="UTF-8"?>
<DataTables edition="test">
  <Table Name="TABLE04">
    <Group Name="住宅">
      <Row Name="自备" Unit="每人每日" L="40～80" h="24"/>
      <Row Name="集中" Unit="每人每日" L="60～100" h="10～12"/>
    </Group>
    <Row Name="别墅" Unit="每人每日" L="70～110" h=""/>
    <Row Name="浴室" Unit="每顾客每次" L="40~60" h="0"/>
    <Group Name="空组"/>
  </Table>
  <Table Name="TABLE05">
    <Group Name="住宅">
      <Row Name="浴盆" L="150" HL="300" C="40" PER="70～100"/>
      <Row Name="淋浴器" L="70～100" HL="140～200" C="37～40" PER="-"/>
    </Group>
    <Row Name="洗涤盆" L="-" HL="-" C="50" PER="-"/>
    <Row Name="4" HL="4"/>
    <Row Name="5" HL="5"/>
    <Row Name="6" HL="6"/>
    <Row Name="7" HL="7"/>
    <Row Name="8" HL="8"/>
    <Row Name="9" HL="9"/>
    <Row Name="10" HL="10"/>
    <Row Name="11" HL="11"/>
    <Row Name="12" HL="12"/>
  </Table>
  <Table Name="TABLE06">
    <Group Name="东北">
      <Row Name="黑龙江" UC="4" DC="6～10"/>
      <Group Name="辽宁">
        <Row Name="大部" UC="4" DC="6～10"/>
        <Row Name="南部" UC="-" DC="10～15"/>
      </Group>
    </Group>
    <Group Name="华北">
      <Row Name="北京" UC="4" DC="10～15"/>
    </Group>
  </Table>
  <Table Name="TABLE08">
    <Table Name="Class01"><Row M="100" Kh="5.12"/><Row M="150" Kh="4.49～4.13"/></Table>
    <Table Name="Class03"><Row M="50" Kh="4.55"/></Table>
  </Table>
  <Table Name="TABLE09">
    <Group Name="东南"><Row Name="江西大部" UC="5" DC="15～20"/></Group>
  </Table>
</DataTables>
)";

}  // namespace zwt::test
