-- by-name-of-a-column
-- ordered
select CustomerID, Company from Customers where CountryCode = 'GB' order by CustomerID

-- by-number-of-a-column
-- ordered
select Company, City, CustomerID from Customers where CountryCode = 'PL' order by 2, 1, 3

-- downwards-by-price
-- ordered
SELECT ProductID, ProductName, ListPrice FROM Products WHERE ListPrice > 90 ORDER BY ListPrice DESC, ProductID

-- upwards-in-words
-- ordered
select LastName, Salary, EmployeeID from Employees order by Salary desc, EmployeeID asc

-- by-alias
-- ordered
select CountryCode as Code, CountryName as "Name" from Countries order by Code

-- by-alias-of-an-expression
-- ordered
select ProductID, ListPrice - PurchasePrice as Margin from Products where CategoryID = 1 order by Margin desc, ProductID

-- by-a-column-that-is-not-shown
-- ordered
select FirstName, LastName from Employees order by HireDate, EmployeeID

-- by-an-expression
-- ordered
select SupplierName from Suppliers order by length(SupplierName), SupplierName

-- by-case
-- ordered
select OrderID, Status from Orders where OrderDate >= '2025-12-15'
order by case Status when 'H' then 1 when 'O' then 2 else 3 end, OrderID

-- by-a-column-of-another-table
-- ordered
select p.ProductName from Products p join Categories k on k.CategoryID = p.CategoryID
where p.Discontinued = 1 order by k.CategoryName, p.ProductID

-- nulls-first-by-nature
-- ordered
select CustomerID, CreditLimit from Customers where CountryCode = 'AT' order by CreditLimit, CustomerID

-- nulls-last
-- ordered
select CustomerID, CreditLimit from Customers where CountryCode = 'AT' order by CreditLimit nulls last, CustomerID

-- without-regard-to-case
-- ordered
select LastName, EmployeeID from Employees order by LastName collate nocase, EmployeeID

-- downwards-by-number-and-name
-- ordered
select c.CountryName, c.Region from Countries c order by 2 desc, CountryName desc

-- not-a-total-order
select Company, Segment from Customers where CountryCode = 'FR' order by Segment

-- sorted-twice-by-the-same
-- ordered
select WarehouseID, City from Warehouses order by City, City desc, WarehouseID

-- sorted-by-number-of-an-expression
-- ordered
select upper(City), CustomerID from Customers where Segment = 'P' order by 1, 2 desc

-- sorted-with-all-columns
-- ordered
select * from Shippers order by ShipperName desc

-- alias-of-another-column
-- The alias is the name of another column, and sorting takes the alias.
-- ordered
select LastName as FirstName, FirstName as LastName from Employees order by FirstName, LastName

-- sorted-by-a-constant-expression
-- ordered
select WarehouseID from Warehouses order by 1 + 0, WarehouseID
