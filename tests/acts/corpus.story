Opened architecture.dxf
; drawing: corpus/architecture.dxf | SOFA | ARBRE10
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         3  PUERTA
        10  SOFA
         1  MESACENTRO
         0  _ArchTick
         4  ARBRE10
         4  ARBRE11
         3  ARBUST10
         2  start
         1  arrow
         1  ARBOL
and 6 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 15 entries
      > 0 *D11
        1 *D12
        2 *D13
        3 *D14
        4 *D15
        5 *D16
        6 ARBOL
        7 ARBRE10
        ... and 7 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D11
        3 *D12
        4 *D13
        5 *D14
        6 *D15
        7 *D16
        ... and 10 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = SOFA
> CboBlocReplacer = ARBRE10
(typed only; "CboBlocReplacer : ARBRE10" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         3  PUERTA
         0  SOFA
         1  MESACENTRO
         0  _ArchTick
        14  ARBRE10
         4  ARBRE11
         3  ARBUST10
         2  start
         1  arrow
         1  ARBOL
and 6 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 10 INSERT
added: 10 INSERT
Opened attribute.dxf
; drawing: corpus/attribute.dxf | BL1 | block1
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         0  lineaTest
         0  block1
         1  BL1
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 BL1
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 BL1
        3 block1
        4 lineaTest
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = BL1
> CboBlocReplacer = block1
(typed only; "CboBlocReplacer : block1" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  lineaTest
         1  block1
         0  BL1
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 ATTRIB, 1 INSERT, 1 SEQEND
added: 1 INSERT
Opened custom_blocks.dxf
; drawing: corpus/custom_blocks.dxf | CustomBlock1 | CustomBlock1
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         3  CustomBlock1
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 CustomBlock1
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 CustomBlock1
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 3
> lstDestination = CustomBlock1
> CboBlocReplacer = CustomBlock1
(typed only; "CboBlocReplacer : CustomBlock1" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         3  CustomBlock1
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 3 INSERT
added: 3 INSERT
Opened example_r12.dxf
; drawing: corpus/example_r12.dxf | BLOKO | CIRKLO_PUNKTOJ
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         2  BLOKO
         8  CIRKLO_PUNKTOJ
         1  *U15
         1  *U16
         1  *X17
         1  *U18
         1  *U19
         1  *D21
         1  *U30
         1  *U38
         1  *U39
and 27 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D10
        1 *D11
        2 *D12
        3 *D13
        4 *D21
        5 *D4
        6 *D6
        7 *D7
        ... and 12 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D10
        3 *D11
        4 *D12
        5 *D13
        6 *D21
        7 *D4
        ... and 32 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = BLOKO
> CboBlocReplacer = CIRKLO_PUNKTOJ
(typed only; "CboBlocReplacer : CIRKLO_PUNKTOJ" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  BLOKO
        10  CIRKLO_PUNKTOJ
         1  *U15
         1  *U16
         1  *X17
         1  *U18
         1  *U19
         1  *D21
         1  *U30
         1  *U38
         1  *U39
and 27 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 2 ATTRIB, 2 INSERT, 2 SEQEND
added: 2 INSERT
Opened floorplan.dxf
; drawing: corpus/floorplan.dxf | xref-Bishop-Overland-08$0$FIXT-OVALBATH | xref-Bishop-Overland-08$0$P-Toilet
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         0  _ArchTick
         0  _Open30
         0  ARCHARR
         0  archarrow
         0  T-section-marker
         0  T-section-marker2
         0  xref-Bishop-Overland-08
         1  xref-Bishop-Overland-08$0$FIXT-WASHER26
         1  xref-Bishop-Overland-08$0$FIXT-DRYERE28
         1  xref-Bishop-Overland-08$0$FIXT-CKTOP24E
         1  xref-Bishop-Overland-08$0$FIXT-DBLKIT32
         3  xref-Bishop-Overland-08$0$FIXT-OVALBATH
         1  xref-Bishop-Overland-08$0$FIXT-SNGREF30
         2  xref-Bishop-Overland-08$0$P-Toilet
         0  xref-Bishop-Overland-08$0$St-Hanger
         0  A$C198F7789
         0  GENAXEH
and 128 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 70 entries
      > 0 *D100
        1 *D101
        2 *D102
        3 *D103
        4 *D104
        5 *D105
        6 *D106
        7 *D107
        ... and 62 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D10
        3 *D100
        4 *D101
        5 *D102
        6 *D103
        7 *D104
        ... and 139 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = xref-Bishop-Overland-08$0$FIXT-OVALBATH
> CboBlocReplacer = xref-Bishop-Overland-08$0$P-Toilet
(typed only; "CboBlocReplacer : xref-Bishop-Overland-08$0$P-Toilet" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  _ArchTick
         0  _Open30
         0  ARCHARR
         0  archarrow
         0  T-section-marker
         0  T-section-marker2
         0  xref-Bishop-Overland-08
         1  xref-Bishop-Overland-08$0$FIXT-WASHER26
         1  xref-Bishop-Overland-08$0$FIXT-DRYERE28
         1  xref-Bishop-Overland-08$0$FIXT-CKTOP24E
         1  xref-Bishop-Overland-08$0$FIXT-DBLKIT32
         0  xref-Bishop-Overland-08$0$FIXT-OVALBATH
         1  xref-Bishop-Overland-08$0$FIXT-SNGREF30
         5  xref-Bishop-Overland-08$0$P-Toilet
         0  xref-Bishop-Overland-08$0$St-Hanger
         0  A$C198F7789
         0  GENAXEH
and 128 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 3 INSERT
added: 3 INSERT
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121503
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121531
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121559
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 121587
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 121615
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121643
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121491
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121519
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121547
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 121575
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 121603
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 121631
Opened furniture.dxf
; drawing: corpus/furniture.dxf | V-CHAIR | V-SOFA
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         1  V-BEDTABLE
         1  V-DRAWERS
         1  V-CHAIR
         1  V-SOFA
         1  V-FRIDGE
         1  V-WORKTOP
         1  V-COFFEETABLE
         1  V-BATH
         1  V-BED
         1  V-TOILET
         1  V-BASIN
         1  V-RDTABLE
         1  V-SINK
         1  V-COOKER
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 14 entries
      > 0 V-BASIN
        1 V-BATH
        2 V-BED
        3 V-BEDTABLE
        4 V-CHAIR
        5 V-COFFEETABLE
        6 V-COOKER
        7 V-DRAWERS
        ... and 6 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 V-BASIN
        3 V-BATH
        4 V-BED
        5 V-BEDTABLE
        6 V-CHAIR
        7 V-COFFEETABLE
        ... and 8 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = V-CHAIR
> CboBlocReplacer = V-SOFA
(typed only; "CboBlocReplacer : V-SOFA" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         1  V-BEDTABLE
         1  V-DRAWERS
         0  V-CHAIR
         2  V-SOFA
         1  V-FRIDGE
         1  V-WORKTOP
         1  V-COFFEETABLE
         1  V-BATH
         1  V-BED
         1  V-TOILET
         1  V-BASIN
         1  V-RDTABLE
         1  V-SINK
         1  V-COOKER
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 INSERT
added: 1 INSERT
Opened multi_insert_with_attribs.dxf
; drawing: corpus/multi_insert_with_attribs.dxf | FLAG | FLAG
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         1  FLAG
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 FLAG
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 FLAG
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = FLAG
> CboBlocReplacer = FLAG
(typed only; "CboBlocReplacer : FLAG" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         1  FLAG
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 3 ATTRIB, 1 INSERT, 1 SEQEND
added: 3 ATTRIB, 1 INSERT, 1 SEQEND
Opened ts1_2018.dxf
; drawing: corpus/ts1_2018.dxf | some block | some block
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         1  some block
and 7 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 8 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *D5
        4 *D6
        5 *D7
        6 *T8
        7 some block
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *D5
        6 *D6
        7 *D7
        ... and 2 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = some block
> CboBlocReplacer = some block
(typed only; "CboBlocReplacer : some block" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         1  some block
and 7 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 ATTRIB, 1 DICTIONARY, 1 INSERT, 1 SEQEND
added: 1 ATTRIB, 1 INSERT, 1 SEQEND
Opened uncommon.dxf
; drawing: corpus/uncommon.dxf | DATE_BLOCK | A$C84c221ce
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         1  DATE_BLOCK
         0  A$C3e977400
         0  A$C84c221ce
and 27 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 17 entries
      > 0 *D12
        1 *D13
        2 *D15
        3 *D16
        4 *D17
        5 *D18
        6 *D19
        7 *D20
        ... and 9 more
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D1
        3 *D10
        4 *D11
        5 *D12
        6 *D13
        7 *D14
        ... and 24 more
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 1
> lstDestination = DATE_BLOCK
> CboBlocReplacer = A$C84c221ce
(typed only; "CboBlocReplacer : A$C84c221ce" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         0  DATE_BLOCK
         0  A$C3e977400
         1  A$C84c221ce
and 27 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 1 ATTRIB, 2 DICTIONARY, 2 FIELD, 1 INSERT, 1 SEQEND
added: 1 INSERT
Opened visibility.dxf
; drawing: corpus/visibility.dxf | text-block | text-block
; check: result.dxf
; The program that wrote the furniture gives its references a Z scale of 0, which reads as 1.
Command: LIST
References  Block
         2  text-block
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 1 entry
      > 0 text-block
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 text-block
    Label1: Insertion parameters ( Tick to change )
    chkRotation: [ ] Rotation
    txtRotation: "Unchanged" (disabled)
    chkVisibility: [ ] Visibility
    cboVisibility: "Unchanged" (disabled)
        0 On
        1 Off
      > 2 Unchanged
    chkXScale: [ ] X scale
    txtXScale: "Unchanged" (disabled)
    chkYScale: [ ] Y scale
    txtYScale: "Unchanged" (disabled)
    chkZScale: [ ] Z scale
    txtZScale: "Unchanged" (disabled)
    ChkAttSet: [ ] Transfer attribute values (disabled)
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 2
> lstDestination = text-block
> CboBlocReplacer = text-block
(typed only; "CboBlocReplacer : text-block" chooses the entry)
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
         2  text-block
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 2 INSERT
added: 2 INSERT
