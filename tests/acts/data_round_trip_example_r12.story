-- prepare remove_references.py example_r12.dxf stripped.dxf BLOKO CIRKLO_PUNKTOJ
removed 10 references
Opened example_r12.dxf
; drawing: corpus/example_r12.dxf
; options: --regional fr
; prepare: remove_references.py example_r12.dxf stripped.dxf BLOKO CIRKLO_PUNKTOJ
; run: compare_references.py original-example_r12.dxf result.dxf BLOKO CIRKLO_PUNKTOJ
; run: check_drawing.py stripped.dxf result.dxf
; A drawing of R12 under a decimal comma: both ends of the trip have it, so nothing is lost.
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Block data extraction
  Label0: Block name:
  Label1:
  Frame2: Extracted data
    ListView2: 0 rows
        #
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@756
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'BLOKO'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> OKButton
[fmVnMessage] hidden
Select objects: all
64 found, 64 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> show
  Label0: Block name:
  Label1: BLOKO
  Frame2: Extracted data
    ListView2: 2 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | ETIKEDO | Calque | Couleur
      > 1 | 1 | 3642,1373579311 | 6066,04956661179 | 0 | 1 | 1 | 1 | 0 | valoro de la teksto en bloko | TAVOLO_3 | 256
        2 | 2 | 0 | 0 | 0 | 3256,51775698584 | -1843,49201867684 | 3256,51775698584 | 5,43397650990976 | valoro | TAVOLO_3 | 256
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnSave
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@1C8
[fmVnMessage] Vorlane 1.0 : Message (again)
> OKButton
[fmVnMessage] hidden
Select objects: all
64 found, 64 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnSave
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data2.txt
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> BtnClose
[fmExtract] hidden
Command: OPEN stripped.dxf
Opened stripped.dxf
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D10
      1 *D11
      2 *D12
      3 *D13
      4 *D21
      5 *D4
      6 *D5
      7 *D6
      ... and 32 more
> Combo1 # 37
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'BLOKO'
    ListView1: 11 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | X insertion
        2 | Y_ | Y insertion
        3 | Z_ | Z insertion
        4 | Ech.X | Ech. X
        5 | Ech.Y | Ech. Y
        6 | Ech.Z | Ech. Z
        7 | Rotation(rd) | Rotation
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | ETIKEDO | ETIKEDO
    LblVal: Value
    ComboBox1: ""
        0 N°
        1 X insertion
        2 Y insertion
        3 Z insertion
        4 Ech. X
        5 Ech. Y
        6 Ech. Z
        7 Rotation
        8 ETIKEDO
        9 Calque
        10 Couleur
  Frame2: Données d'insert° du bloc 'BLOKO' : 'data1.txt'
    ListView2: 2 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | ETIKEDO | Calque | Couleur
      > 1 | 1 | 3642,1373579311 | 6066,04956661179 | 0 | 1 | 1 | 1 | 0 | valoro de la teksto en bloko | TAVOLO_3 | 256
        2 | 2 | 0 | 0 | 0 | 3256,51775698584 | -1843,49201867684 | 3256,51775698584 | 5,43397650990976 | valoro | TAVOLO_3 | 256
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "BLOKO"
      0 *D10
      1 *D11
      2 *D12
      3 *D13
      4 *D21
      5 *D4
      6 *D5
      7 *D6
      8 *D7
      9 *D8
      10 *D9
      11 *T14
      12 *U15
      13 *U16
      14 *U18
      15 *U19
      16 *U20
      17 *U22
      18 *U23
      19 *U24
      20 *U25
      21 *U26
      22 *U27
      23 *U28
      24 *U29
      25 *U30
      26 *U31
      27 *U32
      28 *U33
      29 *U34
      30 *U35
      31 *U36
      32 *U37
      33 *U38
      34 *U39
      35 *X17
      36 <<< Select
    > 37 BLOKO
      38 Browse >>>
      39 CIRKLO_PUNKTOJ
> BtnInsert
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: VNINSERT
[fmReInsert] Vorlane 1.0 : Block re-insertion
  Frame1: Attributes of ''
    ListView1: 10 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ |
        2 | Y_ |
        3 | Z_ |
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX |
        ... and 2 more
    LblVal: Value
    ComboBox1: ""
  Frame2: Insertion data: ''
    ListView2: 0 rows
        #
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: ""
      0 *D10
      1 *D11
      2 *D12
      3 *D13
      4 *D21
      5 *D4
      6 *D5
      7 *D6
      ... and 32 more
> Combo1 # 39
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data2.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> BtnInsert
+-- Quillet 1.0 (i)
|  End of the insertion.
|  
+-- [ok]
> ok
> BtnClose
[fmReInsert] hidden
Command: SAVE result.dxf
Saved result.dxf
-- run compare_references.py original-example_r12.dxf result.dxf BLOKO CIRKLO_PUNKTOJ
BLOKO: 2 before, 2 after, 2 equal
CIRKLO_PUNKTOJ: 8 before, 8 after, 8 equal
-- run check_drawing.py stripped.dxf result.dxf
removed: none
added: 2 ATTRIB, 10 INSERT, 2 SEQEND
