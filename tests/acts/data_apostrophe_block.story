-- prepare add_blocks.py template.dxf apostrophe.dxf CAFE'
Opened template.dxf
; drawing: samples/template.dxf
; prepare: add_blocks.py template.dxf apostrophe.dxf CAFE'
; before: printf 'x\tT\r\nN\tX\tY\tZ\r\n1\t5\t6\t0\r\n' > data.txt && cp data.txt "data'"
; A block whose name ends with an apostrophe never lets insert, nor does a file with such a name: the button goes by the
; ends of two captions.
Command: OPEN apostrophe.dxf
Opened apostrophe.dxf
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
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 CAFE'
      4 ETIQUETTE_PIECE
      5 NORD
      6 POTEAU
      7 SURVEY_POINT
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data.txt
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> Combo1 # 3
> show
  Frame1: Attributs de 'CAFE''
    ListView1: 11 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | X
        2 | Y_ | Y
        3 | Z_ | Z
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | TEXTE |
    LblVal: Value
    ComboBox1: ""
        0 N
        1 X
        2 Y
        3 Z
  Frame2: Données d'insert° du bloc 'T' : 'FOLDER/data.txt'
    ListView2: 1 row
        # | N | X | Y | Z
      > 1 | 1 | 5 | 6 | 0
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: "CAFE'"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
    > 3 CAFE'
      4 ETIQUETTE_PIECE
      5 NORD
      6 POTEAU
      7 SURVEY_POINT
> Combo1 # 7
> show
  Frame1: Attributs de 'SURVEY_POINT'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | X
        2 | Y_ | Y
        3 | Z_ | Z
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | MATRICULE |
        12 | ALTITUDE |
        13 | NATURE |
    LblVal: Value
    ComboBox1: ""
        0 N
        1 X
        2 Y
        3 Z
  Frame2: Données d'insert° du bloc 'T' : 'FOLDER/data.txt'
    ListView2: 1 row
        # | N | X | Y | Z
      > 1 | 1 | 5 | 6 | 0
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert]
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SURVEY_POINT"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 CAFE'
      4 ETIQUETTE_PIECE
      5 NORD
      6 POTEAU
    > 7 SURVEY_POINT
> BtnData
[fmReInsert] hidden
+-- Sélectionnez le fichier des données d'insertion
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file data'
[fmReInsert] Vorlane 1.0 : Block re-insertion (again)
> show
  Frame1: Attributs de 'SURVEY_POINT'
    ListView1: 13 rows
        # | Paramètre | Colonne-valeurs
      > 1 | X_ | X
        2 | Y_ | Y
        3 | Z_ | Z
        4 | Ech.X |
        5 | Ech.Y |
        6 | Ech.Z |
        7 | Rotation(rd) |
        8 | DeltaX | 0
        9 | DeltaY | 0
        10 | DeltaZ | 0
        11 | MATRICULE |
        12 | ALTITUDE |
        13 | NATURE |
    LblVal: Value
    ComboBox1: ""
        0 N
        1 X
        2 Y
        3 Z
  Frame2: Données d'insert° du bloc 'T' : 'FOLDER/data''
    ListView2: 2 rows
        # | N | X | Y | Z
      > 1 | N | X | Y | Z
        2 | 1 | 5 | 6 | 0
  Check1: [ ] Add a leader line (disabled)
  BtnData: [Insertion data]
  BtnInsert: [Insert] (disabled)
  BtnClose: [Close]
  Label1: Block name
  Combo1: "SURVEY_POINT"
      0 <<< Select
      1 ARBRE
      2 Browse >>>
      3 CAFE'
      4 ETIQUETTE_PIECE
      5 NORD
      6 POTEAU
    > 7 SURVEY_POINT
> BtnClose
[fmReInsert] hidden
