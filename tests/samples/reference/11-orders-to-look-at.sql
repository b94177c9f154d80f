with of_2025 as (
  select o.OrderID, o.OrderDate, c.Company, n.CountryName, o.Freight, o.Express, n.Region, c.Segment
  from Orders as o
  join Customers as c on c.CustomerID = o.CustomerID
  join Countries as n on n.CountryCode = c.CountryCode
  where o.OrderDate between '2025-01-01' and '2025-12-31'
)
select OrderID, OrderDate, Company, CountryName, Freight, Express from of_2025
where CountryName = 'Germany' and Freight > 80
union
select OrderID, OrderDate, Company, CountryName, Freight, Express from of_2025
where CountryName = 'France' and Express
union
select OrderID, OrderDate, Company, CountryName, Freight, Express from of_2025
where Region = 'Overseas' and Segment not in ('R', 'P')
order by 4, 1
