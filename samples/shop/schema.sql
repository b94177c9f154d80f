-- The order database of Harbour & Hill, a trading company for tools and household goods.
-- Dates, times and date-times are ISO text; booleans are 0 or 1.

CREATE TABLE Countries (
  CountryCode CHAR(2) PRIMARY KEY,
  CountryName VARCHAR(40) NOT NULL,
  Region VARCHAR(20) NOT NULL,
  InCustomsUnion BOOLEAN NOT NULL
);

CREATE TABLE Employees (
  EmployeeID INTEGER PRIMARY KEY,
  FirstName VARCHAR(30) NOT NULL,
  LastName VARCHAR(30) NOT NULL,
  JobTitle VARCHAR(40) NOT NULL,
  ReportsTo INTEGER REFERENCES Employees (EmployeeID),
  HireDate DATE NOT NULL,
  LeaveDate DATE,
  WorkStarts TIME NOT NULL,
  PartTime BOOLEAN NOT NULL,
  Salary DECIMAL(10,2) NOT NULL,
  Notes TEXT
);

CREATE TABLE Customers (
  CustomerID INTEGER PRIMARY KEY,
  Company VARCHAR(60) NOT NULL,
  ContactName VARCHAR(40),
  Phone VARCHAR(24),
  City VARCHAR(40) NOT NULL,
  PostCode VARCHAR(12),
  CountryCode CHAR(2) NOT NULL REFERENCES Countries (CountryCode),
  Segment CHAR(1) NOT NULL,
  AccountManagerID INTEGER REFERENCES Employees (EmployeeID),
  CustomerSince DATE NOT NULL,
  CreditLimit DECIMAL(10,2),
  Newsletter BOOLEAN NOT NULL,
  Notes TEXT
);

CREATE TABLE Addresses (
  AddressID INTEGER PRIMARY KEY,
  CustomerID INTEGER NOT NULL REFERENCES Customers (CustomerID),
  Street VARCHAR(60) NOT NULL,
  City VARCHAR(40) NOT NULL,
  PostCode VARCHAR(12),
  CountryCode CHAR(2) NOT NULL REFERENCES Countries (CountryCode)
);

CREATE TABLE Shippers (
  ShipperID INTEGER PRIMARY KEY,
  ShipperName VARCHAR(40) NOT NULL,
  Phone VARCHAR(24)
);

CREATE TABLE Categories (
  CategoryID INTEGER PRIMARY KEY,
  CategoryName VARCHAR(30) NOT NULL,
  Description TEXT
);

CREATE TABLE Suppliers (
  SupplierID INTEGER PRIMARY KEY,
  SupplierName VARCHAR(60) NOT NULL,
  City VARCHAR(40) NOT NULL,
  CountryCode CHAR(2) NOT NULL REFERENCES Countries (CountryCode),
  LeadDays INTEGER NOT NULL,
  Preferred BOOLEAN NOT NULL
);

CREATE TABLE Products (
  ProductID INTEGER PRIMARY KEY,
  ProductName VARCHAR(60) NOT NULL,
  CategoryID INTEGER NOT NULL REFERENCES Categories (CategoryID),
  SupplierID INTEGER NOT NULL REFERENCES Suppliers (SupplierID),
  "Pack Size" INTEGER NOT NULL,
  PurchasePrice DECIMAL(10,2) NOT NULL,
  ListPrice DECIMAL(10,2) NOT NULL,
  WeightKg DECIMAL(8,3),
  IntroducedOn DATE NOT NULL,
  Discontinued BOOLEAN NOT NULL,
  Description TEXT
);

CREATE TABLE Warehouses (
  WarehouseID INTEGER PRIMARY KEY,
  WarehouseName VARCHAR(40) NOT NULL,
  City VARCHAR(40) NOT NULL
);

CREATE TABLE Stock (
  ProductID INTEGER NOT NULL REFERENCES Products (ProductID),
  WarehouseID INTEGER NOT NULL REFERENCES Warehouses (WarehouseID),
  OnHand INTEGER NOT NULL,
  ReorderLevel INTEGER NOT NULL,
  CountedAt DATETIME,
  PRIMARY KEY (ProductID, WarehouseID)
);

CREATE TABLE Orders (
  OrderID INTEGER PRIMARY KEY,
  CustomerID INTEGER NOT NULL REFERENCES Customers (CustomerID),
  EmployeeID INTEGER NOT NULL REFERENCES Employees (EmployeeID),
  OrderDate DATE NOT NULL,
  OrderTime TIME NOT NULL,
  RequiredDate DATE NOT NULL,
  ShippedAt DATETIME,
  ShipperID INTEGER REFERENCES Shippers (ShipperID),
  Status CHAR(1) NOT NULL,
  Express BOOLEAN NOT NULL,
  Freight DECIMAL(10,2) NOT NULL,
  BillingAddressID INTEGER NOT NULL REFERENCES Addresses (AddressID),
  ShippingAddressID INTEGER NOT NULL REFERENCES Addresses (AddressID),
  Remarks TEXT
);

CREATE TABLE "Order Lines" (
  OrderID INTEGER NOT NULL REFERENCES Orders (OrderID),
  LineNo INTEGER NOT NULL,
  ProductID INTEGER NOT NULL REFERENCES Products (ProductID),
  Quantity INTEGER NOT NULL,
  UnitPrice DECIMAL(10,2) NOT NULL,
  Discount DECIMAL(4,2) NOT NULL,
  PRIMARY KEY (OrderID, LineNo)
);

CREATE TABLE Returns (
  ReturnID INTEGER PRIMARY KEY,
  OrderID INTEGER NOT NULL,
  LineNo INTEGER NOT NULL,
  ReturnedOn DATE NOT NULL,
  Quantity INTEGER NOT NULL,
  Reason VARCHAR(20) NOT NULL,
  Refunded BOOLEAN NOT NULL,
  Remarks TEXT,
  FOREIGN KEY (OrderID, LineNo) REFERENCES "Order Lines" (OrderID, LineNo)
);

CREATE TABLE Payments (
  PaymentID INTEGER PRIMARY KEY,
  OrderID INTEGER NOT NULL REFERENCES Orders (OrderID),
  PaidAt DATETIME NOT NULL,
  Method VARCHAR(12) NOT NULL,
  Amount DECIMAL(10,2) NOT NULL
);

CREATE INDEX OrdersByCustomer ON Orders (CustomerID);
CREATE INDEX OrdersByDate ON Orders (OrderDate);
CREATE INDEX LinesByProduct ON "Order Lines" (ProductID);
CREATE INDEX PaymentsByOrder ON Payments (OrderID);
CREATE INDEX ReturnsByLine ON Returns (OrderID, LineNo);
