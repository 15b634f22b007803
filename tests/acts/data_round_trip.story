-- prepare remove_references.py drawing.dxf stripped.dxf SOFA ARBRE10
removed 14 references
Opened architecture.dxf
; drawing: corpus/architecture.dxf | en | SOFA | C87 | 16 | ARBRE10 | B99 | 9
; before: cp original-*.dxf drawing.dxf
; options: --regional en
; prepare: remove_references.py drawing.dxf stripped.dxf SOFA ARBRE10
; run: compare_references.py drawing.dxf result.dxf SOFA ARBRE10
; run: check_drawing.py stripped.dxf result.dxf
; Rotations and scales of many digits, an attribute, R12 under a decimal comma at both ends, mirrored references whose
; extrusion is -1.
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
Select the bloc reference label to list :@C87
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'SOFA'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> OKButton
[fmVnMessage] hidden
Select objects: all
711 found, 711 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> show
  Label0: Block name:
  Label1: SOFA
  Frame2: Extracted data
    ListView2: 10 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | 17.6550914282747 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        2 | 2 | 18.5812275335379 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        3 | 3 | 14.7291763291402 | 13.9997905903908 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        4 | 4 | 14.7291763291402 | 14.9259266956541 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        5 | 5 | 14.7291763291402 | 15.8658065776099 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        6 | 6 | 16.4444703150332 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        7 | 7 | 17.3706064202964 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        8 | 8 | 18.3177256905329 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        9 | 9 | 19.2438617957961 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        10 | 10 | 20.180489483546 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
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
Select the bloc reference label to list :@B99
[fmVnMessage] Vorlane 1.0 : Message (again)
> OKButton
[fmVnMessage] hidden
Select objects: all
711 found, 711 total
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
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      ... and 10 more
> Combo1 # 16
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'SOFA'
    ListView1: 10 rows
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
        8 Calque
        9 Couleur
  Frame2: Données d'insert° du bloc 'SOFA' : 'FOLDER/data1.txt'
    ListView2: 10 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | 17.6550914282747 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        2 | 2 | 18.5812275335379 | 13.470760244825 | 0 | 1 | 1 | 1 | 6.28318530717957 | texture | 256
        3 | 3 | 14.7291763291402 | 13.9997905903908 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        4 | 4 | 14.7291763291402 | 14.9259266956541 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        5 | 5 | 14.7291763291402 | 15.8658065776099 | 0 | 1 | 1 | 1 | 1.57079632679489 | texture | 256
        6 | 6 | 16.4444703150332 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        7 | 7 | 17.3706064202964 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        8 | 8 | 18.3177256905329 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        9 | 9 | 19.2438617957961 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
        10 | 10 | 20.180489483546 | 8.60986379187943 | 0 | -1 | 1 | 1 | 3.1415926535898 | texture | 256
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SOFA"
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      8 ARBOL
      9 ARBRE10
      10 ARBRE11
      11 ARBUST10
      12 arrow
      13 Browse >>>
      14 MESACENTRO
      15 PUERTA
    > 16 SOFA
      17 start
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
      0 *D11
      1 *D12
      2 *D13
      3 *D14
      4 *D15
      5 *D16
      6 <<< Select
      7 _ArchTick
      ... and 10 more
> Combo1 # 9
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
-- run compare_references.py drawing.dxf result.dxf SOFA ARBRE10
SOFA: 10 before, 10 after, 10 equal
ARBRE10: 4 before, 4 after, 4 equal
-- run check_drawing.py stripped.dxf result.dxf
removed: none
added: 14 INSERT
-- prepare remove_references.py drawing.dxf stripped.dxf bloko CIRKLO_PUNKTOJ
removed 10 references
Opened example_2018.dxf
; drawing: corpus/example_2018.dxf | en | bloko | 190 | 12 | CIRKLO_PUNKTOJ | 1C8 | 14
; before: cp original-*.dxf drawing.dxf
; options: --regional en
; prepare: remove_references.py drawing.dxf stripped.dxf bloko CIRKLO_PUNKTOJ
; run: compare_references.py drawing.dxf result.dxf bloko CIRKLO_PUNKTOJ
; run: check_drawing.py stripped.dxf result.dxf
; Rotations and scales of many digits, an attribute, R12 under a decimal comma at both ends, mirrored references whose
; extrusion is -1.
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
Select the bloc reference label to list :@190
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'bloko'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> OKButton
[fmVnMessage] hidden
Select objects: all
68 found, 68 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> show
  Label0: Block name:
  Label1: bloko
  Frame2: Extracted data
    ListView2: 2 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | ETIKEDO | Calque | Couleur
      > 1 | 1 | 3642.1373579311 | 6066.04956661179 | 0 | 1 | 1 | 1 | 0 | valoro de la teksto en bloko | Tavolo 3 | 256
        2 | 2 | 0 | 0 | 0 | 3256.51775698584 | -1843.49201867684 | 3256.51775698584 | 5.43397650990976 | valoro | Tavolo 3 | 256
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
68 found, 68 total
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
      4 *D4
      5 *D5
      6 *D6
      7 *D7
      ... and 7 more
> Combo1 # 12
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'bloko'
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
  Frame2: Données d'insert° du bloc 'bloko' : 'FOLDER/data1.txt'
    ListView2: 2 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | ETIKEDO | Calque | Couleur
      > 1 | 1 | 3642.1373579311 | 6066.04956661179 | 0 | 1 | 1 | 1 | 0 | valoro de la teksto en bloko | Tavolo 3 | 256
        2 | 2 | 0 | 0 | 0 | 3256.51775698584 | -1843.49201867684 | 3256.51775698584 | 5.43397650990976 | valoro | Tavolo 3 | 256
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "bloko"
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
      11 <<< Select
    > 12 bloko
      13 Browse >>>
      14 CIRKLO_PUNKTOJ
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
      4 *D4
      5 *D5
      6 *D6
      7 *D7
      ... and 7 more
> Combo1 # 14
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
-- run compare_references.py drawing.dxf result.dxf bloko CIRKLO_PUNKTOJ
bloko: 2 before, 2 after, 2 equal
CIRKLO_PUNKTOJ: 8 before, 8 after, 8 equal
-- run check_drawing.py stripped.dxf result.dxf
removed: none
added: 2 ATTRIB, 10 INSERT, 2 SEQEND
-- prepare remove_references.py drawing.dxf stripped.dxf BLOKO CIRKLO_PUNKTOJ
removed 10 references
Opened example_r12.dxf
; drawing: corpus/example_r12.dxf | fr | BLOKO | 756 | 37 | CIRKLO_PUNKTOJ | 1C8 | 39
; before: cp original-*.dxf drawing.dxf
; options: --regional fr
; prepare: remove_references.py drawing.dxf stripped.dxf BLOKO CIRKLO_PUNKTOJ
; run: compare_references.py drawing.dxf result.dxf BLOKO CIRKLO_PUNKTOJ
; run: check_drawing.py stripped.dxf result.dxf
; Rotations and scales of many digits, an attribute, R12 under a decimal comma at both ends, mirrored references whose
; extrusion is -1.
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
  Frame2: Données d'insert° du bloc 'BLOKO' : 'FOLDER/data1.txt'
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
-- run compare_references.py drawing.dxf result.dxf BLOKO CIRKLO_PUNKTOJ
BLOKO: 2 before, 2 after, 2 equal
CIRKLO_PUNKTOJ: 8 before, 8 after, 8 equal
-- run check_drawing.py stripped.dxf result.dxf
removed: none
added: 2 ATTRIB, 10 INSERT, 2 SEQEND
-- prepare remove_references.py drawing.dxf stripped.dxf xref-Bishop-Overland-08$0$FIXT-OVALBATH xref-Bishop-Overland-08$0$P-Toilet
removed 5 references
Opened floorplan.dxf
; drawing: corpus/floorplan.dxf | en | xref-Bishop-Overland-08$0$FIXT-OVALBATH | 163F | 142 | xref-Bishop-Overland-08$0$P-Toilet | 16C3 | 145
; before: cp original-*.dxf drawing.dxf
; options: --regional en
; prepare: remove_references.py drawing.dxf stripped.dxf xref-Bishop-Overland-08$0$FIXT-OVALBATH xref-Bishop-Overland-08$0$P-Toilet
; run: compare_references.py drawing.dxf result.dxf xref-Bishop-Overland-08$0$FIXT-OVALBATH xref-Bishop-Overland-08$0$P-Toilet
; run: check_drawing.py stripped.dxf result.dxf
; Rotations and scales of many digits, an attribute, R12 under a decimal comma at both ends, mirrored references whose
; extrusion is -1.
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
Select the bloc reference label to list :@163F
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'xref-Bishop-Overland-08$0$FIXT-OVALBATH'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> OKButton
[fmVnMessage] hidden
Select objects: all
967 found, 967 total
Select objects: 
[fmExtract] Vorlane 1.0 : Block data extraction (again)
> show
  Label0: Block name:
  Label1: xref-Bishop-Overland-08$0$FIXT-OVALBATH
  Frame2: Extracted data
    ListView2: 3 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | -363.536279232579 | 189.645948467859 | 0 | 1 | 1 | -1 | 4.71238898038469 | xref-Bishop-Overland-08$0$A-CASE-1 | 256
        2 | 2 | -453.066148800696 | 317.738908729495 | 0 | 1 | 1 | -1 | 0 | xref-Bishop-Overland-08$0$A-CASE-1 | 256
        3 | 3 | -412.479703254464 | 317.738908729495 | 0 | 1 | 1 | 1 | 0 | xref-Bishop-Overland-08$0$A-CASE-1 | 256
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
Select the bloc reference label to list :@16C3
[fmVnMessage] Vorlane 1.0 : Message (again)
> OKButton
[fmVnMessage] hidden
Select objects: all
967 found, 967 total
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
      1 *D100
      2 *D101
      3 *D102
      4 *D103
      5 *D104
      6 *D105
      7 *D106
      ... and 139 more
> Combo1 # 142
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data1.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'xref-Bishop-Overland-08$0$FIXT-OVALBATH'
    ListView1: 10 rows
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
        8 Calque
        9 Couleur
  Frame2: Données d'insert° du bloc 'xref-Bishop-Overland-08$0$FIXT-OVALBATH' : 'FOLDER/data1.txt'
    ListView2: 3 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | -363.536279232579 | 189.645948467859 | 0 | 1 | 1 | -1 | 4.71238898038469 | xref-Bishop-Overland-08$0$A-CASE-1 | 256
        2 | 2 | -453.066148800696 | 317.738908729495 | 0 | 1 | 1 | -1 | 0 | xref-Bishop-Overland-08$0$A-CASE-1 | 256
        3 | 3 | -412.479703254464 | 317.738908729495 | 0 | 1 | 1 | 1 | 0 | xref-Bishop-Overland-08$0$A-CASE-1 | 256
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "xref-Bishop-Overland-08$0$FIXT-OVALBATH"
      0 *D10
      1 *D100
      2 *D101
      3 *D102
      4 *D103
      5 *D104
      6 *D105
      7 *D106
      8 *D107
      9 *D108
      10 *D109
      11 *D11
      12 *D110
      13 *D111
      14 *D112
      15 *D113
      16 *D114
      17 *D115
      18 *D116
      19 *D117
      20 *D118
      21 *D119
      22 *D12
      23 *D120
      24 *D121
      25 *D122
      26 *D123
      27 *D124
      28 *D125
      29 *D126
      30 *D127
      31 *D128
      32 *D129
      33 *D13
      34 *D130
      35 *D131
      36 *D132
      37 *D133
      38 *D134
      39 *D135
      40 *D136
      41 *D137
      42 *D138
      43 *D139
      44 *D14
      45 *D140
      46 *D141
      47 *D15
      48 *D16
      49 *D17
      50 *D18
      51 *D19
      52 *D20
      53 *D21
      54 *D22
      55 *D23
      56 *D24
      57 *D25
      58 *D26
      59 *D27
      60 *D28
      61 *D29
      62 *D30
      63 *D31
      64 *D32
      65 *D33
      66 *D34
      67 *D35
      68 *D36
      69 *D37
      70 *D38
      71 *D39
      72 *D4
      73 *D40
      74 *D41
      75 *D42
      76 *D43
      77 *D44
      78 *D45
      79 *D46
      80 *D47
      81 *D48
      82 *D49
      83 *D5
      84 *D50
      85 *D51
      86 *D52
      87 *D56
      88 *D57
      89 *D58
      90 *D59
      91 *D6
      92 *D60
      93 *D61
      94 *D62
      95 *D63
      96 *D64
      97 *D65
      98 *D66
      99 *D67
      100 *D68
      101 *D69
      102 *D7
      103 *D79
      104 *D8
      105 *D80
      106 *D81
      107 *D82
      108 *D83
      109 *D84
      110 *D85
      111 *D86
      112 *D87
      113 *D88
      114 *D89
      115 *D9
      116 *D90
      117 *D91
      118 *D92
      119 *D93
      120 *D94
      121 *D95
      122 *D96
      123 *D97
      124 *D98
      125 *D99
      126 *U142
      127 *U144
      128 <<< Select
      129 _ArchTick
      130 _Open30
      131 A$C198F7789
      132 ARCHARR
      133 archarrow
      134 Browse >>>
      135 GENAXEH
      136 T-section-marker
      137 T-section-marker2
      138 xref-Bishop-Overland-08
      139 xref-Bishop-Overland-08$0$FIXT-CKTOP24E
      140 xref-Bishop-Overland-08$0$FIXT-DBLKIT32
      141 xref-Bishop-Overland-08$0$FIXT-DRYERE28
    > 142 xref-Bishop-Overland-08$0$FIXT-OVALBATH
      143 xref-Bishop-Overland-08$0$FIXT-SNGREF30
      144 xref-Bishop-Overland-08$0$FIXT-WASHER26
      145 xref-Bishop-Overland-08$0$P-Toilet
      146 xref-Bishop-Overland-08$0$St-Hanger
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
      1 *D100
      2 *D101
      3 *D102
      4 *D103
      5 *D104
      6 *D105
      7 *D106
      ... and 139 more
> Combo1 # 145
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
-- run compare_references.py drawing.dxf result.dxf xref-Bishop-Overland-08$0$FIXT-OVALBATH xref-Bishop-Overland-08$0$P-Toilet
xref-Bishop-Overland-08$0$FIXT-OVALBATH: 3 before, 3 after, 3 equal
xref-Bishop-Overland-08$0$P-Toilet: 2 before, 2 after, 2 equal
-- run check_drawing.py stripped.dxf result.dxf
removed: none
added: 5 INSERT
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120691
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120719
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120747
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 120775
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 120803
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120831
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120803
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120831
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120859
skipped invalid handle "INSERT,STDPART2D" in DXF entity "ACAMGFILTERDAT" near line 120887
skipped invalid handle "INSERT" in DXF entity "ACAMGFILTERDAT" near line 120915
skipped invalid handle "*" in DXF entity "ACAMGFILTERDAT" near line 120943
