Opened example_2000.dxf
; drawing: corpus/example_2000.dxf
; check: result.dxf
Command: LIST
References  Block
         2  bloko
         8  CIRKLO_PUNKTOJ
and 11 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 13 entries
      > 0 *D10
        1 *D11
        2 *D12
        3 *D3
        4 *D4
        5 *D5
        6 *D6
        7 *D7
        ... and 5 more
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
        5 *D3
        6 *D4
        7 *D5
        ... and 7 more
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
; a block by itself, its attributes carried over
> lstDestination = bloko
> CboBlocReplacer # 13
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 13 entries
        0 *D10
        1 *D11
        2 *D12
        3 *D3
        4 *D4
        5 *D5
        6 *D6
        7 *D7
        8 *D8
        9 *D9
        10 *T13
      > 11 bloko
        12 CIRKLO_PUNKTOJ
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: "bloko"
        0 <<< Select
        1 Browse >>>
        2 *D10
        3 *D11
        4 *D12
        5 *D3
        6 *D4
        7 *D5
        8 *D6
        9 *D7
        10 *D8
        11 *D9
        12 *T13
      > 13 bloko
        14 CIRKLO_PUNKTOJ
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
    ChkAttSet: [ ] Transfer attribute values
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 2
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Attribute value transfer settings
  Frame1: Matching table
    ListView1: 1 row
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | ETIKEDO |
  Combo2: ""
      0 ETIKEDO
  Label3: Attribute in the destination block:
  OKButton: [OK]
> show
  Frame1: Matching table
    ListView1: 1 row
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | ETIKEDO |
  Combo2: ""
      0 ETIKEDO
  Label3: Attribute in the destination block:
  OKButton: [OK]
> ListView1 # 1
> Combo2 # 0
> OKButton
[fmAttSet] hidden
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
; and another by a block without attributes, scaled and turned
> lstDestination = CIRKLO_PUNKTOJ
> CboBlocReplacer = bloko
(typed only; "CboBlocReplacer : bloko" chooses the entry)
> chkXScale
> txtXScale = 2.5
> chkRotation
> txtRotation = 0.5
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
        10  bloko
         0  CIRKLO_PUNKTOJ
and 11 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 2 ATTRIB, 10 INSERT, 2 SEQEND
added: 10 ATTRIB, 10 INSERT, 10 SEQEND
Opened example_2018.dxf
; drawing: corpus/example_2018.dxf
; check: result.dxf
Command: LIST
References  Block
         2  bloko
         8  CIRKLO_PUNKTOJ
and 11 without name or references (of dimensions and the like)
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 13 entries
      > 0 *D10
        1 *D11
        2 *D12
        3 *D13
        4 *D4
        5 *D5
        6 *D6
        7 *D7
        ... and 5 more
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
        6 *D4
        7 *D5
        ... and 7 more
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
; a block by itself, its attributes carried over
> lstDestination = bloko
> CboBlocReplacer # 13
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 13 entries
        0 *D10
        1 *D11
        2 *D12
        3 *D13
        4 *D4
        5 *D5
        6 *D6
        7 *D7
        8 *D8
        9 *D9
        10 *T14
      > 11 bloko
        12 CIRKLO_PUNKTOJ
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select] (disabled)
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: "bloko"
        0 <<< Select
        1 Browse >>>
        2 *D10
        3 *D11
        4 *D12
        5 *D13
        6 *D4
        7 *D5
        8 *D6
        9 *D7
        10 *D8
        11 *D9
        12 *T14
      > 13 bloko
        14 CIRKLO_PUNKTOJ
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
    ChkAttSet: [ ] Transfer attribute values
    BtnAttSet: [Set up] (disabled)
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 2
> ChkAttSet
> BtnAttSet
[fmAttSet] Vorlane 1.0 : Attribute value transfer settings
  Frame1: Matching table
    ListView1: 1 row
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | ETIKEDO |
  Combo2: ""
      0 ETIKEDO
  Label3: Attribute in the destination block:
  OKButton: [OK]
> show
  Frame1: Matching table
    ListView1: 1 row
        # | Attribut dans le bloc source | Attribut dans le bloc de destination
      > 1 | ETIKEDO |
  Combo2: ""
      0 ETIKEDO
  Label3: Attribute in the destination block:
  OKButton: [OK]
> ListView1 # 1
> Combo2 # 0
> OKButton
[fmAttSet] hidden
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
; and another by a block without attributes, scaled and turned
> lstDestination = CIRKLO_PUNKTOJ
> CboBlocReplacer = bloko
(typed only; "CboBlocReplacer : bloko" chooses the entry)
> chkXScale
> txtXScale = 2.5
> chkRotation
> txtRotation = 0.5
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
        10  bloko
         0  CIRKLO_PUNKTOJ
and 11 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
-- check result.dxf
removed: 2 ATTRIB, 10 INSERT, 2 SEQEND
added: 10 ATTRIB, 10 INSERT, 10 SEQEND
