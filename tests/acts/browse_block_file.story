Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --keep-going
; exit: 1
; copy: samples/porte_double.dxf
; copy: samples/empty.dxf
; check: result.dxf --imports
; run: print_references.py result.dxf PORTE_DOUBLE
; A block comes in from a file, is listed and selected, and replaces another.
Command: VNREPLACE
[fmReplace] Vorlane 1.0 : Block replacement
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
      > 0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
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
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        ... and 16 more
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
> lstDestination = PORTE_90
> CboBlocReplacer # 1
[fmReplace] hidden
+-- Open
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> file porte_double.dxf
[fmReplace] Vorlane 1.0 : Block replacement (again)
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
        16 PORTE_80
      > 17 PORTE_90
        18 POTEAU
        19 WC
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select]
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: "porte_double"
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 OCULUS
        20 PORTE_80
        21 PORTE_90
      > 22 porte_double
        23 POTEAU
        24 TABLE_160
        25 WC
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
  LblNbrSelected: 3
> BtnReplace
+-- Quillet 1.0 (i)
|  Blocks references replaced succesfully.
+-- [ok]
> ok
; cancelled: the dialog comes back with no replacement block
> CboBlocReplacer # 1
[fmReplace] hidden
+-- Open
|  Dessin bloc AutoCAD (*.dwg) (.dxf too)
+-- [file PATH] [cancel]
> cancel
[fmReplace] Vorlane 1.0 : Block replacement (again)
> show
  Frame1: Blocks to replace
    Label3: Block name
    lstDestination: 20 entries
        0 *D2
        1 *D3
        2 *D4
        3 *U1
        4 ARBRE
        5 BAIGNOIRE
        6 CANAPE
        7 CARTOUCHE
        8 CHAISE
        9 ENSEMBLE_REPAS
        10 ETIQUETTE_PIECE
        11 EVIER
        12 FENETRE_120
        13 LAVABO
        14 LIT_140
        15 NORD
        16 PORTE_80
        17 porte_double
        18 POTEAU
        19 WC
    BtnSelectName: [Select]
    Label4: Reference zone
    optZoneAll: (o) Whole drawing
    BtnSelectZone: [Select]
    optZoneSelection: ( ) Selection
  Frame2: Replacement block
    Label5: Block name
    CboBlocReplacer: ""
        0 <<< Select
        1 Browse >>>
        2 *D2
        3 *D3
        4 *D4
        5 *U1
        6 _CLOSEDFILLED
        7 ARBRE
        8 BAIGNOIRE
        9 CANAPE
        10 CARTOUCHE
        11 CHAISE
        12 ENSEMBLE_REPAS
        13 ETIQUETTE_PIECE
        14 EVIER
        15 FENETRE_120
        16 LAVABO
        17 LIT_140
        18 NORD
        19 OCULUS
        20 PORTE_80
        21 PORTE_90
        22 porte_double
        23 POTEAU
        24 TABLE_160
        25 WC
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
    BtnAttSet: [Set up]
  BtnReplace: [Replace]
  BtnClose: [Close]
  Label2: Number of blocks to replace:
  LblNbrSelected: 3
> BtnReplace
! Error -2145386420: Object was erased
> BtnClose
[fmReplace] hidden
Command: LIST
References  Block
        16  PORTE_80
         0  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
         3  porte_double
         0  OCULUS
and 3 without name or references (of dimensions and the like)
Command: SAVE result.dxf
Saved result.dxf
Command: U
Undone.
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
The changes to result.dxf were not saved.
vorlane-console: line 20: BtnReplace: Error -2145386420: Object was erased
-- check result.dxf --imports
removed: 12 ATTRIB, 3 INSERT, 3 SEQEND
added: 2 ARC, 3 ATTDEF, 9 ATTRIB, 2 BLOCK, 2 BLOCK_RECORD, 1 CIRCLE, 2 ENDBLK, 5 INSERT, 1 LAYER, 3 LINE, 1 LTYPE, 3 SEQEND
-- run print_references.py result.dxf PORTE_DOUBLE
Model: at 8,5.55,0 scale 1,1,1 rotation -90 layer 0 CODE='D00' PASSAGE='140' VITRAGE='feuilleté'
Model: at 10,5.55,0 scale -1,1,1 rotation 90 layer 0 CODE='D00' PASSAGE='140' VITRAGE='feuilleté'
Model: at 8.55,0,0 scale 1,1,1 rotation 0 layer 0 CODE='D00' PASSAGE='140' VITRAGE='feuilleté'
